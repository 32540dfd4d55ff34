#include "progressbar.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <iostream>

namespace {

constexpr int barWidth = 24; ///< characters
constexpr char clearLine[] = "\r\033[K";

int terminalWidth()
{
    winsize size{};
    return ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : 80;
}

} // namespace

ProgressBar::ProgressBar(int total)
    : m_total(total)
    , m_isTerminal(isatty(STDERR_FILENO) == 1)
{
}

ProgressBar::~ProgressBar()
{
    if (m_isTerminal)
        std::cerr << clearLine << std::flush;
}

void ProgressBar::show(int done, const QString& name) const
{
    if (!m_isTerminal)
        return;
    const int filled = barWidth * done / std::max(m_total, 1);
    const QString line = QStringLiteral("[%1] %2/%3 %4")
                             .arg(QString(filled, QLatin1Char('#')).leftJustified(barWidth, QLatin1Char('.')))
                             .arg(done)
                             .arg(m_total)
                             .arg(name);
    std::cerr << clearLine << line.left(terminalWidth() - 1).toStdString() << std::flush;
}
