#pragma once

#include <QStringList>

#include <functional>

/// The host's own texts, translated by the same translator as the editor's.
QString hostText(const QString& source);

/// The host's texts in the language that it has now, for any thread.
std::function<QString(const char* source)> hostTexts();

/// `hostText` without what tells that more is asked: a window is called by what it is about.
QString hostTitle(const QString& source);

/// Marks a text of a table that `hostText` is asked for later.
constexpr const char* hostSource(const char* source)
{
    return source;
}

/// What the editor calls a chart that it names itself, in each language: a number follows it.
QStringList chartNames();
