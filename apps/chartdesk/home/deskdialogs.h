#pragma once

#include <QString>

class QFileDialog;
class QFileSystemModel;
class QInputDialog;
class QLocale;
class QModelIndex;
class QWidget;

/// Dialogs that the toolkit has, as the desk shows them: named, none larger than its screen, and deleted when
/// they are closed.
namespace DeskDialogs {

/// `wanted`, or as much of it as the screen has room for, with a frame around.
void resizeWithinScreen(QWidget* window, const QSize& wanted);

/// Size or date of a file as `locale` writes it; empty for the other columns.
QString fileDetail(const QFileSystemModel& files, const QModelIndex& index, const QLocale& locale);

/// Asks for a line of text; the caller connects and opens it.
QInputDialog* textDialog(QWidget* parent, const QString& title, const QString& label, const QString& text);

/// Asks for a file to be written in `folder`; the caller connects and opens it.
QFileDialog* saveDialog(QWidget* parent, const QString& title, const QString& folder);

/// Asks for a folder, beginning at `folder`.
QFileDialog* folderDialog(QWidget* parent, const QString& title, const QString& folder);

/// Asks for a file that is there, of the kinds of `filter`.
QFileDialog* openDialog(QWidget* parent, const QString& title, const QString& filter);

} // namespace DeskDialogs
