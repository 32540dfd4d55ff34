#include "imagewidget.h"

#include <QPainter>

namespace vardeno::testcharttools {

ImageWidget::ImageWidget(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("ImageWidget"));
}

void ImageWidget::setPixmap(const QPixmap& pixmap)
{
    m_pixmap = pixmap;
    update();
}

void ImageWidget::paintEvent(QPaintEvent*)
{
    if (m_pixmap.isNull())
        return;
    QPainter painter(this);
    painter.drawPixmap(0, 0, width(), height(), m_pixmap);
}

} // namespace vardeno::testcharttools
