#pragma once

#include "vdwidget_export.h"

#include <QComboBox>

namespace vardeno::testcharttools {

/// A combo box for a settings panel: as wide as the panel makes it, whatever the length of its items. A
/// current item that is too wide is shown elided on the right, with its full text as tool tip; the list that
/// pops up is wide enough to show every item whole. Items are added with `addItem(text, data)`. GUI thread
/// only.
class VDWIDGET_EXPORT ComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit ComboBox(QWidget* parent = nullptr);

    void showPopup() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    /// The current item's text as it fits beside the arrow.
    QString fittedText() const;
    int widestItem() const;
};

} // namespace vardeno::testcharttools
