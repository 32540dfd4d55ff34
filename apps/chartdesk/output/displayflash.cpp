#include "displayflash.h"

#include "display.h"

#include <QPainter>
#include <QScreen>
#include <QTimer>
#include <QWindow>

namespace {

constexpr int flashDuration = 2500; ///< ms

} // namespace

void DisplayFlash::showAll()
{
    const QVector<DeskDisplay> all = displays();
    for (const DeskDisplay& display : all) {
        QScreen* screen = screenNamed(display.name);
        auto* flash = new DisplayFlash(display.number, display.name);
        flash->create();
        flash->windowHandle()->setScreen(screen);
        QRect place(QPoint(), screen->size() / 3);
        place.moveCenter(screen->geometry().center());
        flash->setGeometry(place);
        flash->show();
        QTimer::singleShot(flashDuration, flash, &QObject::deleteLater);
    }
}

DisplayFlash::DisplayFlash(int number, const QString& name, QWidget* parent)
    : QWidget(parent, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                          Qt::WindowDoesNotAcceptFocus | Qt::WindowTransparentForInput)
    , m_number(QString::number(number))
    , m_name(name)
{
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);
    setObjectName(QStringLiteral("displayFlash"));
    setAccessibleName(m_number + QLatin1Char(' ') + name);
}

void DisplayFlash::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().window());
    painter.setPen(QPen(palette().highlight(), 6));
    painter.drawRect(rect().adjusted(3, 3, -3, -3));
    painter.setPen(palette().color(QPalette::WindowText));
    QFont font = painter.font();
    font.setPixelSize(std::max(12, height() * 6 / 10));
    font.setBold(true);
    painter.setFont(font);
    painter.drawText(QRect(0, 0, width(), height() * 8 / 10), Qt::AlignCenter, m_number);
    font.setPixelSize(std::max(10, height() / 10));
    font.setBold(false);
    painter.setFont(font);
    painter.drawText(QRect(0, height() * 8 / 10, width(), height() * 2 / 10), Qt::AlignHCenter | Qt::AlignTop,
                     m_name);
}
