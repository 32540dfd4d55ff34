#include "readdialog.h"

#include "hosttext.h"
#include "output.h"
#include "walk.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace {

constexpr QSize mostPlan(860, 480);

} // namespace

ReadDialog::ReadDialog(const QString& photo, const QString& chart, Output* output, QWidget* parent)
    : QDialog(parent)
    , m_chart(chart)
    , m_output(output)
    , m_state(new QLabel)
    , m_progress(new QProgressBar)
    , m_plan(new QLabel)
    , m_findings(new QListWidget)
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Cancel))
    , m_walk(
          m_buttons->addButton(hostText(QStringLiteral("Walk the wrong ones")), QDialogButtonBox::ActionRole))
{
    setWindowTitle(hostTitle(QStringLiteral("Read a photo…")));
    setAttribute(Qt::WA_DeleteOnClose);
    createLayout();
    m_state->setText(hostText(QStringLiteral("Reading %1…")).arg(QFileInfo(photo).fileName()));
    m_walk->setEnabled(false);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_walk, &QPushButton::clicked, this, &ReadDialog::walk);
    connect(output, &Output::changed, this, &ReadDialog::updateWalk);
    auto* job = new ReadJob(photo, chart, this);
    connect(job, &ReadJob::done, this, &ReadDialog::show);
}

void ReadDialog::createLayout()
{
    m_state->setObjectName(QStringLiteral("readState"));
    m_state->setWordWrap(true);
    m_state->setMinimumWidth(460);
    m_progress->setRange(0, 0);
    m_progress->setTextVisible(false);
    m_progress->setAccessibleName(windowTitle());
    m_plan->setObjectName(QStringLiteral("readPlan"));
    m_plan->setAlignment(Qt::AlignCenter);
    m_findings->setObjectName(QStringLiteral("readFindings"));
    m_findings->setAccessibleName(windowTitle());
    m_findings->setToolTip(windowTitle());
    m_findings->setMinimumHeight(6 * fontMetrics().lineSpacing());
    m_walk->setObjectName(QStringLiteral("walkWrong"));
    m_plan->hide();
    m_findings->hide();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_state);
    layout->addWidget(m_progress);
    layout->addWidget(m_plan);
    layout->addWidget(m_findings, 1);
    layout->addWidget(m_buttons);
}

/// Beside it the sentences and buttons have to fit the screen, too.
QSize ReadDialog::roomForPlan() const
{
    const QSize others(80, 16 * fontMetrics().lineSpacing());
    return mostPlan.boundedTo(screen()->availableSize() - others).expandedTo(QSize(160, 90));
}

void ReadDialog::show(const WallRead& read)
{
    m_read = read;
    m_progress->hide();
    m_buttons->setStandardButtons(QDialogButtonBox::Close);
    m_buttons->addButton(m_walk, QDialogButtonBox::ActionRole);
    m_state->setVisible(!read.problem.isEmpty());
    m_state->setText(read.problem);
    m_walk->setVisible(read.problem.isEmpty());
    m_findings->addItems(read.sentences);
    m_findings->setVisible(!read.sentences.isEmpty());
    if (!read.plan.isNull()) {
        m_plan->setPixmap(QPixmap::fromImage(
            read.plan.scaled(roomForPlan(), Qt::KeepAspectRatio, Qt::SmoothTransformation)));
        m_plan->setAccessibleName(read.sentences.join(QLatin1String("; ")));
        m_plan->show();
    }
    adjustSize();
    if (parentWidget()) // it has grown from where it was
        move(parentWidget()->geometry().center() - rect().center());
    updateWalk();
}

/// The output has to show the chart that was read, or the cabinets would be those of another one.
void ReadDialog::updateWalk()
{
    const bool isShown =
        m_output && m_output->isOn() && m_output->charts().value(m_output->current()) == m_chart;
    m_walk->setEnabled(isShown && !m_read.wrong.empty());
    m_walk->setToolTip(isShown ? hostText(QStringLiteral("Walk the wrong ones"))
                               : hostText(QStringLiteral("Show this chart on a display first.")));
}

void ReadDialog::walk()
{
    if (m_output)
        m_output->walk()->walkThrough(m_read.wrong);
}
