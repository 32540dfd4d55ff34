#pragma once

#include "chartlist.h"
#include "editsession.h"
#include "mainwindow.h"
#include "settles.h"

#include <spineditbox.h>

#include <QAction>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QStackedWidget>
#include <QTimer>
#include <QtTest>

/// The chart desk in the hands of its user: actions, buttons and keys.
namespace deskwindow {

inline QPushButton* buttonIn(const QWidget& widget, const QString& text)
{
    for (QPushButton* candidate : widget.findChildren<QPushButton*>()) {
        if (candidate->isVisible() && candidate->text() == text)
            return candidate;
    }
    return nullptr;
}

inline bool click(const QWidget& widget, const QString& text)
{
    const auto ready = [&] { return buttonIn(widget, text) && buttonIn(widget, text)->isEnabled(); };
    if (!QTest::qWaitFor(ready))
        return false;
    QTest::mouseClick(buttonIn(widget, text), Qt::LeftButton);
    return true;
}

inline bool trigger(MainWindow& window, const QString& text)
{
    for (QAction* action : window.findChildren<QAction*>()) {
        if (action->text() == text && action->isEnabled()) {
            action->trigger();
            return true;
        }
    }
    return false;
}

inline bool isListShown(const MainWindow& window)
{
    return qobject_cast<QStackedWidget*>(window.centralWidget())->currentIndex() == 0;
}

/// Waits until all charts of the folder are listed.
inline bool isListed(const MainWindow& window)
{
    return QTest::qWaitFor([&] { return !window.findChild<ChartList*>()->isFilling(); });
}

/// The message that is shown, null for none.
inline QMessageBox* message(const MainWindow& window)
{
    for (QMessageBox* box : window.findChildren<QMessageBox*>()) {
        if (box->isVisible())
            return box;
    }
    return nullptr;
}

/// Answers the message that is shown, or comes, with its button `text`.
inline bool answer(const MainWindow& window, const QString& text)
{
    return QTest::qWaitFor([&] { return message(window) != nullptr; }) && click(*message(window), text);
}

inline vardeno::testcharttools::SpinEditBox* rowEntry(const MainWindow& window)
{
    for (auto* entry : window.editor()->findChildren<vardeno::testcharttools::SpinEditBox*>()) {
        if (entry->maximum() == 100 && entry->minimum() == 1)
            return entry;
    }
    return nullptr;
}

inline bool settle(const MainWindow& window)
{
    return settles(*window.editor());
}

inline bool setRows(const MainWindow& window, int rows)
{
    auto* entry = rowEntry(window);
    entry->setFocus();
    entry->selectAll();
    QTest::keyClicks(entry, QString::number(rows));
    QTest::keyClick(entry, Qt::Key_Return);
    return settle(window) && window.editor()->getTestChartToolsData().publicData.boxRow == rows;
}

/// Opens the chart of the list that has the image `imagePath`.
inline bool openChart(MainWindow& window, const QString& imagePath)
{
    auto* list = window.findChild<ChartList*>();
    if (!isListed(window))
        return false;
    for (int row = 0; row < list->count(); ++row) {
        if (list->item(row)->data(Qt::UserRole) == imagePath)
            list->setCurrentRow(row);
    }
    return trigger(window, QStringLiteral("Edit chart")) && window.session()->isOpen() && settle(window);
}

/// Chooses `path` in the file dialog that the next event loop shows.
inline void chooseInDialog(const QString& path)
{
    auto* poll = new QTimer(qApp);
    QObject::connect(poll, &QTimer::timeout, poll, [poll, path] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        poll->deleteLater();
        poll->stop();
        dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(path);
        auto* buttons = dialog->findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"));
        for (QAbstractButton* button : buttons->buttons()) {
            if (buttons->buttonRole(button) == QDialogButtonBox::AcceptRole)
                QTest::mouseClick(button, Qt::LeftButton);
        }
        if (dialog->isVisible())
            dialog->reject();
    });
    poll->start(10);
}

} // namespace deskwindow
