#include "walk.h"

#include "cabinetpattern.h"
#include "colorpattern.h"
#include "counterpattern.h"
#include "hosttext.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

constexpr int paces[] = {30, 60, 120, 300, 600, 1800, 3600}; ///< steps a minute
constexpr int mostLinePixels = 60;

struct ModeKey
{
    int key;
    Walk::Mode mode;
};

constexpr ModeKey modeKeys[] = {{Qt::Key_B, Walk::Mode::Black},    {Qt::Key_W, Walk::Mode::White},
                                {Qt::Key_H, Walk::Mode::Cabinets}, {Qt::Key_S, Walk::Mode::Alone},
                                {Qt::Key_R, Walk::Mode::Row},      {Qt::Key_C, Walk::Mode::Column},
                                {Qt::Key_L, Walk::Mode::Line},     {Qt::Key_F, Walk::Mode::Colors},
                                {Qt::Key_G, Walk::Mode::Greys},    {Qt::Key_N, Walk::Mode::Counter}};

bool runsAtOnce(Walk::Mode mode)
{
    return mode == Walk::Mode::Line || mode == Walk::Mode::Counter;
}

bool needsCabinets(Walk::Mode mode)
{
    return mode == Walk::Mode::Cabinets || mode == Walk::Mode::Alone || mode == Walk::Mode::Row ||
           mode == Walk::Mode::Column || mode == Walk::Mode::Chosen;
}

LineDirection after(LineDirection direction)
{
    return LineDirection((int(direction) + 1) % 3);
}

} // namespace

Walk::Walk(QObject* parent)
    : QObject(parent)
{
    connect(&m_pacer, &FramePacer::frame, this, &Walk::frame);
}

void Walk::setChart(const ShownChart& chart)
{
    const bool isSameWall = chart.record == m_chart.record && chart.picture.size() == m_chart.picture.size();
    m_chart = chart;
    const bool isOfAnotherWall = m_mode == Mode::Chosen && !isSameWall;
    if (isOfAnotherWall || (needsCabinets(m_mode) && !hasCabinets()))
        setMode(Mode::None);
    else if (!isSameWall)
        renewPattern();
}

void Walk::setFrameRate(qreal rate)
{
    m_rate = rate >= 1 ? rate : 60;
    if (isRunning())
        m_pacer.start(m_rate);
}

void Walk::setMode(Mode mode)
{
    if (needsCabinets(mode) && !hasCabinets())
        return;
    m_mode = mode;
    m_step = 0;
    renewPattern();
    setRunning(runsAtOnce(mode)); // from the picture on, which may take longer than a frame
}

void Walk::walkThrough(const std::vector<CabinetPlace>& cabinets)
{
    if (!hasCabinets())
        return;
    const auto& wall = m_chart.record->publicData;
    m_chosen.clear();
    std::copy_if(cabinets.begin(), cabinets.end(), std::back_inserter(m_chosen), [&](const auto& cabinet) {
        return cabinet.row >= 0 && cabinet.row < wall.boxRow && cabinet.column >= 0 &&
               cabinet.column < wall.boxCol;
    });
    setMode(m_chosen.empty() ? Mode::None : Mode::Chosen);
}

std::shared_ptr<const OutputPattern> Walk::createPattern() const
{
    const QSize size = m_chart.picture.size();
    switch (m_mode) {
    case Mode::None:
        break;
    case Mode::Black:
        return std::make_shared<ColorPattern>(size, std::vector<QColor>{Qt::black});
    case Mode::White:
        return std::make_shared<ColorPattern>(size, std::vector<QColor>{Qt::white});
    case Mode::Cabinets:
        return std::make_shared<CabinetPattern>(*m_chart.record, CabinetLook::Highlight, m_path);
    case Mode::Alone:
        return std::make_shared<CabinetPattern>(*m_chart.record, CabinetLook::Alone, m_path);
    case Mode::Chosen:
        return std::make_shared<CabinetPattern>(*m_chart.record, m_chosen);
    case Mode::Row:
        return std::make_shared<CabinetPattern>(*m_chart.record, CabinetLook::Row);
    case Mode::Column:
        return std::make_shared<CabinetPattern>(*m_chart.record, CabinetLook::Column);
    case Mode::Line:
        return std::make_shared<LinePattern>(size, m_direction);
    case Mode::Colors:
        return std::make_shared<ColorPattern>(size, ColorPattern::primaries());
    case Mode::Greys:
        return std::make_shared<ColorPattern>(size, ColorPattern::greys());
    case Mode::Counter:
        return std::make_shared<CounterPattern>(size);
    }
    return nullptr;
}

void Walk::renewPattern()
{
    m_pattern = createPattern();
    m_step = m_pattern ? m_step % m_pattern->steps() : 0;
    m_waitedFrames = 0;
    Q_EMIT patternChanged();
}

void Walk::step(int by)
{
    if (!m_pattern)
        return;
    const int count = m_pattern->steps();
    m_step = ((m_step + by) % count + count) % count;
    Q_EMIT stepChanged(m_step);
}

void Walk::setRunning(bool runs)
{
    if (runs == isRunning() || (runs && m_mode == Mode::None))
        return;
    m_waitedFrames = 0;
    if (runs)
        m_pacer.start(m_rate);
    else
        m_pacer.stop();
    Q_EMIT runningChanged();
}

void Walk::frame()
{
    if (m_mode == Mode::Line) {
        step(m_linePixels);
        return;
    }
    const int framesPerStep =
        m_mode == Mode::Counter ? 1 : std::max(1, int(std::lround(m_rate * 60 / stepsPerMinute())));
    if (++m_waitedFrames < framesPerStep)
        return;
    m_waitedFrames = 0;
    step(1);
}

int Walk::stepsPerMinute() const
{
    return paces[m_pace];
}

void Walk::changePace(int by)
{
    if (m_mode == Mode::Line)
        m_linePixels = std::clamp(m_linePixels + by, 1, mostLinePixels);
    else
        m_pace = std::clamp(m_pace + by, 0, int(std::size(paces)) - 1);
    Q_EMIT runningChanged();
}

QString Walk::paceText() const
{
    if (!isRunning() || m_mode == Mode::Counter)
        return {};
    if (m_mode == Mode::Line)
        return hostText(QStringLiteral("%1 pixels a frame")).arg(m_linePixels);
    return hostText(QStringLiteral("%1 steps a minute")).arg(stepsPerMinute());
}

void Walk::setPath(const WalkPath& path)
{
    m_path = path;
    renewPattern();
}

void Walk::setLineDirection(LineDirection direction)
{
    m_direction = direction;
    renewPattern();
}

QString Walk::text() const
{
    return m_pattern ? m_pattern->text(m_step) : QString();
}

bool Walk::isWalking() const
{
    return m_mode != Mode::None && m_mode != Mode::Black && m_mode != Mode::White;
}

bool Walk::press(int key)
{
    const auto it = std::find_if(std::begin(modeKeys), std::end(modeKeys),
                                 [&](const ModeKey& entry) { return entry.key == key; });
    if (it == std::end(modeKeys))
        return isWalking() && pressInMode(key);
    const bool isBackToChart = it->mode == m_mode && m_mode != Mode::Line;
    if (it->mode == Mode::Line && m_mode == Mode::Line)
        setLineDirection(after(m_direction));
    else
        setMode(isBackToChart ? Mode::None : it->mode);
    return true;
}

bool Walk::pressInMode(int key)
{
    switch (key) {
    case Qt::Key_Right:
    case Qt::Key_Down:
        step(1);
        return true;
    case Qt::Key_Left:
    case Qt::Key_Up:
        step(-1);
        return true;
    case Qt::Key_Space:
        setRunning(!isRunning());
        return true;
    case Qt::Key_Plus:
        changePace(1);
        return true;
    case Qt::Key_Minus:
        changePace(-1);
        return true;
    case Qt::Key_O:
        setPath({!m_path.isByColumns, m_path.isBackAndForth});
        return true;
    case Qt::Key_Z:
        setPath({m_path.isByColumns, !m_path.isBackAndForth});
        return true;
    case Qt::Key_Escape:
        setMode(Mode::None);
        return true;
    default:
        return false;
    }
}
