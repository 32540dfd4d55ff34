#include "screenawake.h"
#include "testcase.h"

#include <QDBusContext>
#include <QDBusServer>

#include <memory>

namespace {

/// The desktop that is asked.
class ScreenSaver : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.ScreenSaver")

public:
    QStringList reasons;
    QVector<uint> released;

public Q_SLOTS:
    uint Inhibit(const QString& program, const QString& reason)
    {
        reasons.append(program + QLatin1Char(':') + reason);
        return 42;
    }
    void UnInhibit(uint cookie) { released.append(cookie); }
};

class PowerManagement : public ScreenSaver
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.PowerManagement.Inhibit")

public Q_SLOTS:
    uint Inhibit(const QString& program, const QString& reason)
    {
        return ScreenSaver::Inhibit(program, reason);
    }
    void UnInhibit(uint cookie) { ScreenSaver::UnInhibit(cookie); }
};

} // namespace

/// A bus of two, so that no desktop is needed.
class TestScreenAwake : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theDesktopIsAskedAndReleased()
    {
        ScreenSaver saver;
        PowerManagement power;
        QDBusServer server(QStringLiteral("unix:tmpdir=/tmp"));
        QVERIFY(server.isConnected());
        connect(&server, &QDBusServer::newConnection, this, [&](QDBusConnection desktop) {
            desktop.registerObject(QStringLiteral("/org/freedesktop/ScreenSaver"), &saver,
                                   QDBusConnection::ExportAllSlots);
            desktop.registerObject(QStringLiteral("/org/freedesktop/PowerManagement/Inhibit"), &power,
                                   QDBusConnection::ExportAllSlots);
            m_desktop = std::make_unique<QDBusConnection>(desktop);
        });
        const QDBusConnection bus = QDBusConnection::connectToPeer(server.address(), QStringLiteral("desk"));
        QVERIFY(bus.isConnected());
        QTRY_VERIFY(m_desktop);

        auto awake = std::make_unique<ScreenAwake>(bus, 1, QStringLiteral("A chart is shown."));
        QTRY_COMPARE(saver.reasons.size(), 1);
        QTRY_COMPARE(power.reasons.size(), 1);
        QVERIFY(saver.reasons.first().endsWith(QStringLiteral(":A chart is shown.")));
        QTest::qWait(100); // the answers
        awake.reset();
        QTRY_COMPARE(saver.released, QVector<uint>{42});
        QTRY_COMPARE(power.released, QVector<uint>{42});
        QDBusConnection::disconnectFromPeer(QStringLiteral("desk"));
    }

    /// Nothing happens, and nothing is warned of.
    void withoutADesktop()
    {
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", "/nowhere");
        {
            const ScreenAwake awake(QDBusConnection(QStringLiteral("none")), 1, QStringLiteral("no"));
        }
        qputenv("PATH", path);
    }

    /// Else the tool is asked, with the window, and told when it is over.
    void theToolInItsPlace()
    {
        const QTemporaryDir folder;
        QFile tool(folder.filePath(QStringLiteral("xdg-screensaver")));
        QVERIFY(tool.open(QIODevice::WriteOnly));
        tool.write("#!/bin/sh\necho \"$@\" >> \"$(dirname \"$0\")/log\"\n");
        tool.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        tool.close();
        const QByteArray path = qgetenv("PATH");
        const QByteArray display = qgetenv("DISPLAY");
        qputenv("PATH", folder.path().toUtf8() + ':' + path);
        qputenv("DISPLAY", ":1");
        const auto logged = [&] {
            QFile log(folder.filePath(QStringLiteral("log")));
            return log.open(QIODevice::ReadOnly) ? log.readAll() : QByteArray();
        };
        {
            const ScreenAwake awake(QDBusConnection(QStringLiteral("none")), 77, QStringLiteral("no"));
            QTRY_COMPARE(logged(), QByteArray("suspend 77\n"));
        }
        QTRY_COMPARE(logged(), QByteArray("suspend 77\nresume 77\n"));
        qputenv("PATH", path);
        display.isNull() ? (void)qunsetenv("DISPLAY") : (void)qputenv("DISPLAY", display);
    }

private:
    std::unique_ptr<QDBusConnection> m_desktop;
};

VD_TEST_MAIN(TestScreenAwake)
#include "tst_screenawake.moc"
