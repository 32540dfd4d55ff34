#pragma once

#include <QObject>

class MainWindow;

/// Gives a desk back what it was when it was closed: its place, its language and its folder.
class DeskMemory : public QObject
{
    Q_OBJECT

public:
    explicit DeskMemory(MainWindow* window);

    /// The language that was chosen, `otherwise` before one was.
    static QString language(const QString& otherwise);

    /// The folder that was open last, `otherwise` where it is not there any more.
    static QString folder(const QString& otherwise);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void restorePlace();
    void store() const;

    MainWindow* m_window;
};
