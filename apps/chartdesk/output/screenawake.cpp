#include "screenawake.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QProcess>
#include <QStandardPaths>

namespace {

struct Service
{
    const char* name;
    const char* path;
};

/// The first keeps the picture on, the second the machine.
constexpr Service services[] = {
    {"org.freedesktop.ScreenSaver", "/org/freedesktop/ScreenSaver"},
    {"org.freedesktop.PowerManagement.Inhibit", "/org/freedesktop/PowerManagement/Inhibit"},
};

QDBusMessage methodCall(const Service& service, const char* method)
{
    return QDBusMessage::createMethodCall(QLatin1String(service.name), QLatin1String(service.path),
                                          QLatin1String(service.name), QLatin1String(method));
}

/// It needs a window of an X server, and holds off what watches that.
void runTool(const QString& verb, quintptr window)
{
    const QString tool = QStandardPaths::findExecutable(QStringLiteral("xdg-screensaver"));
    if (!tool.isEmpty() && !qEnvironmentVariableIsEmpty("DISPLAY"))
        QProcess::startDetached(tool, {verb, QString::number(window)});
}

} // namespace

ScreenAwake::ScreenAwake(const QDBusConnection& bus, quintptr window, const QString& reason)
    : m_bus(bus)
    , m_window(window)
{
    if (!m_bus.isConnected()) {
        askTool();
        return;
    }
    for (int service = 0; service < int(std::size(services)); ++service)
        ask(service, reason);
}

ScreenAwake::~ScreenAwake()
{
    for (const auto& [service, cookie] : qAsConst(m_cookies)) {
        QDBusMessage release = methodCall(services[service], "UnInhibit");
        release << cookie;
        m_bus.send(release);
    }
    if (m_isToolAsked)
        runTool(QStringLiteral("resume"), m_window);
}

void ScreenAwake::ask(int service, const QString& reason)
{
    QDBusMessage inhibit = methodCall(services[service], "Inhibit");
    inhibit << QCoreApplication::applicationName() << reason;
    auto* call = new QDBusPendingCallWatcher(m_bus.asyncCall(inhibit), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call, service] {
        const QDBusPendingReply<uint> reply = *call;
        call->deleteLater();
        if (reply.isValid())
            m_cookies.append({service, reply.value()});
        else if (service == 0)
            askTool();
    });
}

void ScreenAwake::askTool()
{
    m_isToolAsked = true;
    runTool(QStringLiteral("suspend"), m_window);
}
