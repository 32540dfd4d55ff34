#include "newfromdialog.h"

#include "hosttext.h"
#include "newchart.h"
#include "presets.h"

#include <chartpicture.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

using namespace vardeno::testcharttools;

namespace {

constexpr QSize presetPictureSize(192, 108);

QImage drawnPreset(const TestChartToolsData& record, const ChartCaptions& captions, qreal ratio)
{
    const QImage chart = ChartPicture(record, captions).image();
    QImage picture = chart.scaled(presetPictureSize * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    picture.setDevicePixelRatio(ratio);
    return picture;
}

} // namespace

NewFromDialog::NewFromDialog(QWidget* parent)
    : QDialog(parent)
    , m_walls(new QComboBox)
    , m_pictures(new QListWidget)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(hostText(QStringLiteral("New from…")));
    for (const Preset& preset : presets()) {
        if (preset.isWall())
            m_walls->addItem(preset.name + QLatin1String("   ") + preset.description, preset.name);
    }
    auto* standard = new QListWidgetItem(hostText(QStringLiteral("Standard")), m_pictures);
    standard->setData(Qt::UserRole, QString());
    for (const Preset& preset : presets()) {
        if (preset.isWall())
            continue;
        auto* item = new QListWidgetItem(preset.name, m_pictures);
        item->setData(Qt::UserRole, preset.name);
        item->setToolTip(preset.description);
    }
    m_pictures->setCurrentRow(0);
    createLayout();
    connect(m_walls, qOverload<int>(&QComboBox::currentIndexChanged), this, &NewFromDialog::drawPictures);
    connect(m_pictures, &QListWidget::itemActivated, this, &QDialog::accept);
    m_pool.setMaxThreadCount(1);
    drawPictures();
}

NewFromDialog::~NewFromDialog()
{
    m_pool.clear();
    m_pool.waitForDone();
}

void NewFromDialog::createLayout()
{
    m_walls->setObjectName(QStringLiteral("presetWalls"));
    m_walls->setAccessibleName(hostText(QStringLiteral("The wall")));
    m_walls->setToolTip(m_walls->accessibleName());
    m_pictures->setObjectName(QStringLiteral("presetPictures"));
    m_pictures->setAccessibleName(hostText(QStringLiteral("What it shows")));
    m_pictures->setToolTip(m_pictures->accessibleName());
    m_pictures->setViewMode(QListView::IconMode);
    m_pictures->setMovement(QListView::Static);
    m_pictures->setResizeMode(QListView::Adjust);
    m_pictures->setIconSize(presetPictureSize);
    m_pictures->setGridSize(presetPictureSize + QSize(20, 16 + fontMetrics().height()));
    m_pictures->setMinimumSize(4 * m_pictures->gridSize().width() + 40, 3 * m_pictures->gridSize().height());
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    auto* create = buttons->addButton(hostText(QStringLiteral("New chart")), QDialogButtonBox::AcceptRole);
    create->setDefault(true);
    const auto all = buttons->buttons();
    for (QAbstractButton* button : all)
        button->setToolTip(button->text());
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_walls);
    layout->addWidget(m_pictures, 1);
    layout->addWidget(buttons);
}

TestChartToolsData NewFromDialog::recordOf(int picture) const
{
    TestChartToolsData wall;
    const Preset* size = findPreset(m_walls->currentData().toString());
    size->apply(wall, *size);
    TestChartToolsData record = newChart(wall.publicData);
    const Preset* content = findPreset(m_pictures->item(picture)->data(Qt::UserRole).toString());
    if (content)
        content->apply(record, *content);
    return record;
}

TestChartToolsData NewFromDialog::record() const
{
    return recordOf(m_pictures->currentRow());
}

void NewFromDialog::drawPictures()
{
    m_pool.clear();
    ++m_round;
    const qreal ratio = devicePixelRatioF();
    for (int row = 0; row < m_pictures->count(); ++row) {
        m_pool.start(
            [this, row, ratio, round = m_round, record = recordOf(row), captions = ChartCaptions::current()] {
                const QImage picture = drawnPreset(record, captions, ratio);
                const auto show = [this, row, round, picture] {
                    if (round == m_round)
                        m_pictures->item(row)->setIcon(QIcon(QPixmap::fromImage(picture)));
                };
                QMetaObject::invokeMethod(this, show, Qt::QueuedConnection);
            });
    }
}
