#pragma once

#include <QGuiApplication>

/// The application that charts are drawn in, with their font. It takes no arguments: they are the program's
/// own.
class ChartApplication : public QGuiApplication
{
public:
    ChartApplication();
};
