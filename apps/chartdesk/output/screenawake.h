#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QVector>

/// Holds the screen saver and power saving off while it lives: by asking the desktop, or else with
/// xdg-screensaver. Where there is neither nothing happens.
class ScreenAwake : public QObject
{
    Q_OBJECT

public:
    /// `window` is the native one that is shown, `reason` is what the desktop shows to its user.
    ScreenAwake(const QDBusConnection& bus, quintptr window, const QString& reason);
    ~ScreenAwake() override;

private:
    void ask(int service, const QString& reason);
    void askTool();

    QDBusConnection m_bus;
    quintptr m_window;
    QVector<QPair<int, uint>> m_cookies; ///< by service
    bool m_isToolAsked = false;
};
