#pragma once

#include "vdpatterndesign_export.h"

#include <QGroupBox>

#include <memory>

namespace vardeno::testcharttools {

class PaintBasicWidget;
class PaintRowColSequeWidget;
class PaintSelfWidget;

/// A complete editor of the cabinet grid layer, for a host that places it itself: grid lines, cabinet labels
/// and the screen's cabinet grid, which it also hands to the base pattern and to the custom text. Its texts
/// are not translated. GUI thread only.
class VDPATTERNDESIGN_EXPORT RowColSequeSettingBox : public QGroupBox
{
    Q_OBJECT

public:
    explicit RowColSequeSettingBox(QWidget* parent = nullptr);
    ~RowColSequeSettingBox() override;

    /// The painters that the panel drives; they stay the caller's. The row/column painter must be set before
    /// a control is used; the other two may be left out.
    void setPaintRowColSequeWidget(PaintRowColSequeWidget* painter);
    void setPaintBasicWidget(PaintBasicWidget* painter);
    void setPaintSelfWidget(PaintSelfWidget* painter);

    /// Pushes the check boxes and the numbering mode into the row/column painter, which starts with
    /// everything switched off. Does nothing before that painter is set.
    void initShow();

    /// As high as its captions are when they wrap.
    QSize sizeHint() const override;

Q_SIGNALS:
    /// A control was used, whether or not that changed anything.
    void rowColSignal();

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace vardeno::testcharttools
