#pragma once

#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <vector>

/// Records every message of the running test function, and tells the warnings that no one declared.
class LogRecorder
{
public:
    static LogRecorder& instance();

    /// Puts the recorder before the handler that is installed now and forgets what was recorded.
    void start();
    void stop();

    /// From here to the end of the test function, warnings that match `pattern` are in order.
    void allowWarning(const QString& pattern);

    /// All messages so far, oldest first.
    QStringList messages() const { return m_messages; }
    /// Those that contain `text`.
    QStringList messages(const QString& text) const { return m_messages.filter(text); }
    void clear() { m_messages.clear(); }

    /// Warnings and worse that were not declared.
    QStringList undeclaredWarnings() const { return m_undeclared; }

private:
    static void handle(QtMsgType type, const QMessageLogContext& context, const QString& text);

    QtMessageHandler m_next = nullptr;
    QStringList m_messages;
    QStringList m_undeclared;
    std::vector<QRegularExpression> m_allowed;
};
