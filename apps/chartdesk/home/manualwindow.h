#pragma once

#include <QDialog>

/// The manual, which the program carries.
class ManualWindow : public QDialog
{
    Q_OBJECT

public:
    explicit ManualWindow(QWidget* parent);
};
