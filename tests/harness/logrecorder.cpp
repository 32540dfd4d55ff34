#include "logrecorder.h"

#include <QMutex>

#include <algorithm>

namespace {

QMutex mutex;

/// The default theme keeps one colour in a form that is refused and one disabled picture: every window that
/// reads it warns of them.
constexpr const char* alwaysAllowed[] = {"Color \"#000000\" is neither a named color nor a valid color",
                                         "Theme image file /*upLogo is not set."};

} // namespace

LogRecorder& LogRecorder::instance()
{
    static LogRecorder recorder;
    return recorder;
}

void LogRecorder::start()
{
    m_messages.clear();
    m_undeclared.clear();
    m_allowed.clear();
    for (const char* text : alwaysAllowed)
        allowWarning(QRegularExpression::escape(QLatin1String(text)));
    m_next = qInstallMessageHandler(handle);
}

void LogRecorder::stop()
{
    qInstallMessageHandler(m_next);
}

void LogRecorder::allowWarning(const QString& pattern)
{
    m_allowed.emplace_back(pattern);
}

void LogRecorder::handle(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    LogRecorder& recorder = instance();
    bool declared = true;
    {
        const QMutexLocker locker(&mutex);
        recorder.m_messages.append(text);
        if (type == QtFatalMsg)
            declared = false;
        if (type == QtWarningMsg || type == QtCriticalMsg) {
            declared = std::any_of(
                recorder.m_allowed.begin(), recorder.m_allowed.end(),
                [&](const QRegularExpression& allowed) { return allowed.match(text).hasMatch(); });
            if (!declared)
                recorder.m_undeclared.append(text);
        }
    }
    if (!declared)
        recorder.m_next(type, context, text);
}
