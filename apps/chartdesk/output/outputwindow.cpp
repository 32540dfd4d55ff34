#include "outputwindow.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace {

constexpr int slack = 1; ///< logical pixels: the toolkit rounds the edges of what it updates

const uchar* pixelRow(const QImage& image, int y)
{
    return image.constScanLine(y);
}

/// The columns of row `y` in which the pictures differ, joined to `columns`.
void joinColumns(const QImage& before, const QImage& after, int y, int& left, int& right)
{
    const auto* a = reinterpret_cast<const QRgb*>(pixelRow(before, y));
    const auto* b = reinterpret_cast<const QRgb*>(pixelRow(after, y));
    left = int(std::mismatch(a, a + left, b).first - a);
    int last = before.width() - 1;
    while (last > right && a[last] == b[last])
        --last;
    right = std::max(right, last);
}

} // namespace

QRect changedRect(const QImage& before, const QImage& after)
{
    if (before.size() != after.size() || before.format() != after.format() || before.depth() != 32)
        return QRect(QPoint(), before.size().expandedTo(after.size()));
    const size_t bytes = size_t(before.width()) * sizeof(QRgb);
    int top = -1;
    int bottom = -1;
    int left = before.width();
    int right = -1;
    for (int y = 0; y < before.height(); ++y) {
        if (std::memcmp(pixelRow(before, y), pixelRow(after, y), bytes) == 0)
            continue;
        top = top < 0 ? y : top;
        bottom = y;
        joinColumns(before, after, y, left, right);
    }
    return top < 0 ? QRect() : QRect(QPoint(left, top), QPoint(right, bottom));
}

OutputWindow::OutputWindow(QWidget* parent)
    : QWidget(parent, Qt::Window | Qt::FramelessWindowHint)
{
    setObjectName(QStringLiteral("outputWindow"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_NoSystemBackground);
    setAttribute(Qt::WA_QuitOnClose, false);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::BlankCursor);
}

void OutputWindow::showOn(QScreen* screen)
{
    create();
    if (windowHandle()->screen() != screen) {
        setWindowState(windowState() & ~Qt::WindowFullScreen); // it would stay on its display
        windowHandle()->setScreen(screen);
    }
    setGeometry(screen->geometry()); // where no window manager fills the display
    showFullScreen();
    raise();
    activateWindow();
}

void OutputWindow::setChart(const QImage& chart, const QPoint& at)
{
    const QImage before = m_chart;
    const bool isMoved = at != m_at;
    m_chart = chart.convertToFormat(QImage::Format_RGB32);
    m_at = at;
    if (isMoved || before.size() != m_chart.size())
        update();
    else
        update(logical(changedRect(before, m_chart)));
}

void OutputWindow::setPattern(const std::shared_ptr<const OutputPattern>& pattern, int step)
{
    m_pattern = pattern;
    m_step = step;
    repaint(); // at once: its steps are counted from here
}

void OutputWindow::setStep(int step)
{
    if (!m_pattern || step == m_step)
        return;
    const QRegion changed = m_pattern->changed(m_step, step);
    m_step = step;
    repaint(logical(changed)); // at once, so that no step is lost to the next
}

/// What of the window holds `region` of the chart.
QRegion OutputWindow::logical(const QRegion& region) const
{
    const qreal scale = devicePixelRatioF();
    QRegion wanted;
    for (const QRect& part : region.translated(m_at)) {
        const QRectF place(part.x() / scale, part.y() / scale, part.width() / scale, part.height() / scale);
        wanted += scale == 1 ? part : place.toAlignedRect().adjusted(-slack, -slack, slack, slack);
    }
    return wanted;
}

void OutputWindow::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    const qreal scale = devicePixelRatioF();
    painter.scale(1 / scale, 1 / scale); // physical pixels from here on
    for (const QRect& part : event->region()) {
        const QRectF physical(part.x() * scale, part.y() * scale, part.width() * scale,
                              part.height() * scale);
        paint(painter, physical.toAlignedRect());
    }
}

void OutputWindow::paint(QPainter& painter, const QRect& place) const
{
    const QRect wall(QPoint(), m_chart.size());
    const QRect wanted = place.translated(-m_at);
    const QRegion chart = QRegion(m_pattern ? m_pattern->chartPart(m_step, wall) : wall) & wall & wanted;
    painter.save();
    painter.setClipRect(place);
    painter.translate(m_at);
    for (const QRect& rest : QRegion(wanted) - chart)
        painter.fillRect(rest, Qt::black);
    for (const QRect& part : chart)
        painter.drawImage(part.topLeft(), m_chart, part);
    if (m_pattern)
        m_pattern->draw(painter, m_step, wall & wanted);
    painter.restore();
}

void OutputWindow::keyPressEvent(QKeyEvent* event)
{
    Q_EMIT keyPressed(event);
}

void OutputWindow::closeEvent(QCloseEvent* event)
{
    event->accept();
    Q_EMIT closed();
}
