#include "undobar.h"

#include "hosttext.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr int offered = 10000; ///< ms

} // namespace

UndoBar::UndoBar(QWidget* parent)
    : QWidget(parent)
    , m_text(new QLabel)
    , m_undo(new QPushButton)
{
    setObjectName(QStringLiteral("undoBar"));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_text);
    layout->addWidget(m_undo);
    layout->addStretch();
    m_timer.setSingleShot(true);
    m_timer.setInterval(offered);
    connect(&m_timer, &QTimer::timeout, this, &UndoBar::forget);
    connect(m_undo, &QPushButton::clicked, this, &UndoBar::restore);
    hide();
}

UndoBar::~UndoBar() = default;

void UndoBar::offer(std::unique_ptr<DeletedChart> chart, const QString& name)
{
    m_chart = std::move(chart);
    m_text->setText(hostText(QStringLiteral("Deleted: %1")).arg(name));
    m_undo->setText(hostText(QStringLiteral("Undo")));
    m_undo->setToolTip(hostText(QStringLiteral("Brings the chart back, within ten seconds")));
    show();
    m_timer.start();
}

void UndoBar::restore()
{
    const QString image = m_chart ? m_chart->restore() : QString();
    forget();
    if (!image.isEmpty())
        Q_EMIT restored(image);
}

void UndoBar::forget()
{
    m_timer.stop();
    m_chart.reset();
    hide();
}
