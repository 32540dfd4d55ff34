#pragma once

#include <QMessageBox>

/// A message of the desk, in the look of the editor: its buttons are added by the caller, it deletes itself.
enum class MessageKind
{
    Note,
    Question,
    Warning
};

QMessageBox* messageBox(QWidget* parent, MessageKind kind, const QString& text, const QString& details);
