#pragma once

#include <QObject>

class QWidget;

/// A control without a tip of its own tells its name: pictures and choices are not read by everybody.
class NameTips : public QObject
{
    Q_OBJECT

public:
    explicit NameTips(QObject* parent);

    bool eventFilter(QObject* watched, QEvent* event) override;
};

/// What assistive programs read, or else what stands on a button.
QString controlName(const QWidget* control);
