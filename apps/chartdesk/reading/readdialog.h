#pragma once

#include "readjob.h"

#include <QDialog>
#include <QPointer>

class Output;
class QDialogButtonBox;
class QLabel;
class QListWidget;
class QProgressBar;
class QPushButton;

/// Reads a photo of a wall, and shows what is wrong: the wall with the wrong cabinets framed, and a sentence
/// for each. The output steps through them where it shows the chart. Deletes itself.
class ReadDialog : public QDialog
{
    Q_OBJECT

public:
    ReadDialog(const QString& photo, const QString& chart, Output* output, QWidget* parent);

private:
    void createLayout();
    QSize roomForPlan() const;
    void show(const WallRead& read);
    void updateWalk();
    void walk();

    QString m_chart;
    QPointer<Output> m_output;
    WallRead m_read;
    QLabel* m_state;
    QProgressBar* m_progress;
    QLabel* m_plan;
    QListWidget* m_findings;
    QDialogButtonBox* m_buttons;
    QPushButton* m_walk;
};
