#pragma once

#include "vdpatterndesign_export.h"

#include <QPixmap>
#include <QWidget>

namespace vardeno::testcharttools {

/// Shows a picture stretched over the whole widget, whatever its proportions. Empty at first. GUI thread
/// only.
class VDPATTERNDESIGN_EXPORT ImageWidget : public QWidget
{
    Q_OBJECT

public:
    explicit ImageWidget(QWidget* parent = nullptr);

    void setPixmap(const QPixmap& pixmap);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap m_pixmap;
};

} // namespace vardeno::testcharttools
