#include "showdialog.h"

#include "displayflash.h"
#include "hosttext.h"
#include "outputplacement.h"

#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QSpinBox>

namespace {

constexpr int farthest = 32767; ///< pixels

QSpinBox* createPlace(const QString& name, const QString& tip)
{
    auto* box = new QSpinBox;
    box->setRange(-farthest, farthest);
    box->setSuffix(QStringLiteral(" px"));
    box->setObjectName(name);
    box->setAccessibleName(name);
    box->setToolTip(tip);
    return box;
}

QString listText(const DeskDisplay& display)
{
    const QString size = hostText(QStringLiteral("%1 x %2 pixels, scaled to %3 %"))
                             .arg(display.pixels.width())
                             .arg(display.pixels.height())
                             .arg(qRound(display.scale * 100));
    return QString::number(display.number) + QLatin1String("   ") + display.name + QLatin1String("   ") +
           size;
}

} // namespace

ShowDialog::ShowDialog(const QSize& chart, QWidget* parent)
    : QDialog(parent)
    , m_chart(chart)
    , m_displays(new QListWidget)
    , m_x(createPlace(QStringLiteral("X"), hostText(QStringLiteral("Pixels from the left of the display"))))
    , m_y(createPlace(QStringLiteral("Y"), hostText(QStringLiteral("Pixels from the top of the display"))))
    , m_difference(new QLabel)
{
    setWindowTitle(hostTitle(QStringLiteral("Show on…")));
    setAttribute(Qt::WA_DeleteOnClose);
    createLayout();
    fillDisplays();
    connect(m_displays, &QListWidget::currentRowChanged, this, &ShowDialog::showDifference);
    connect(m_displays, &QListWidget::itemActivated, this, &QDialog::accept);
    for (QSpinBox* box : {m_x, m_y})
        connect(box, qOverload<int>(&QSpinBox::valueChanged), this, &ShowDialog::showDifference);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, &ShowDialog::fillDisplays);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &ShowDialog::fillDisplays);
    DisplayFlash::showAll();
}

void ShowDialog::createLayout()
{
    const QString tip = hostText(QStringLiteral("The displays of this desktop"));
    m_displays->setObjectName(QStringLiteral("displays"));
    m_displays->setAccessibleName(tip);
    m_displays->setToolTip(tip);
    m_displays->setMinimumSize(460, 4 * fontMetrics().lineSpacing());
    m_displays->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    m_difference->setWordWrap(true);
    m_difference->setObjectName(QStringLiteral("difference"));
    m_difference->setMinimumHeight(3 * fontMetrics().lineSpacing()); // the dialog keeps its size
    m_difference->setAlignment(Qt::AlignTop);
    auto* buttons = new QDialogButtonBox; // Tab would jump over what is there before the default button
    m_show = buttons->addButton(hostText(QStringLiteral("Show")), QDialogButtonBox::AcceptRole);
    auto* number =
        buttons->addButton(hostText(QStringLiteral("Number the displays")), QDialogButtonBox::ActionRole);
    buttons->addButton(QDialogButtonBox::Cancel);
    connect(number, &QPushButton::clicked, this, &DisplayFlash::showAll);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    const auto buttonsOfBox = buttons->buttons();
    for (QAbstractButton* button : buttonsOfBox)
        button->setToolTip(button->text());

    auto* place = new QHBoxLayout;
    for (QSpinBox* box : {m_x, m_y}) {
        place->addWidget(new QLabel(box->objectName()));
        place->addWidget(box);
    }
    place->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_displays);
    layout->addLayout(place);
    layout->addWidget(m_difference);
    layout->addWidget(buttons);
    m_show->setDefault(true); // which a window that it is not in would not know
    m_displays->setFocus();
}

void ShowDialog::fillDisplays()
{
    const QString chosen = display();
    m_found = displays();
    const QSignalBlocker quiet(m_displays);
    m_displays->clear();
    for (const DeskDisplay& display : qAsConst(m_found))
        m_displays->addItem(listText(display));
    setPlace(chosen, place());
}

void ShowDialog::setPlace(const QString& display, const QPoint& at)
{
    const DeskDisplay* known = findDisplay(m_found, display);
    m_displays->setCurrentRow(known ? known->number - 1 : m_found.size() - 1);
    m_x->setValue(at.x());
    m_y->setValue(at.y());
    showDifference();
}

QString ShowDialog::display() const
{
    const int row = m_displays->currentRow();
    return row >= 0 && row < m_found.size() ? m_found.at(row).name : QString();
}

QPoint ShowDialog::place() const
{
    return {m_x->value(), m_y->value()};
}

void ShowDialog::showDifference()
{
    const DeskDisplay* chosen = findDisplay(m_found, display());
    m_show->setEnabled(chosen);
    if (!chosen)
        return;
    const QString difference = differenceText({chosen->pixels, m_chart, place()});
    m_difference->setText(
        difference.isEmpty() ? hostText(QStringLiteral("The chart fills the display exactly.")) : difference);
}
