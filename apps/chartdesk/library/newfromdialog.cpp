#include "newfromdialog.h"

#include "deskdialogs.h"
#include "hosttext.h"
#include "newchart.h"
#include "presets.h"

#include <chartpicture.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>

using namespace vardeno::testcharttools;

namespace {

constexpr QSize presetPictureSize(192, 108);

/// What a person calls the picture that the command line knows as `name`.
struct PictureTitle
{
    const char* name;
    const char* title;
};

constexpr PictureTitle pictureTitles[] = {
    {"flood-red", hostSource("Red")},
    {"flood-green", hostSource("Green")},
    {"flood-blue", hostSource("Blue")},
    {"flood-white", hostSource("White")},
    {"flood-black", hostSource("Black")},
    {"flood-grey", hostSource("Grey")},
    {"ramp-8", hostSource("8 greys")},
    {"ramp-16", hostSource("16 greys")},
    {"ramp-smooth", hostSource("Grey ramp")},
    {"bars", hostSource("Color bars")},
    {"chess", hostSource("Chessboard")},
    {"numbering-top-left", hostSource("Numbers from top left")},
    {"numbering-top-right", hostSource("Numbers from top right")},
    {"numbering-bottom-left", hostSource("Numbers from bottom left")},
    {"numbering-bottom-right", hostSource("Numbers from bottom right")},
    {"tags", hostSource("Coded markers")},
};

/// Its name where it has no title.
QString titleOf(const Preset& preset)
{
    const auto* it =
        std::find_if(std::begin(pictureTitles), std::end(pictureTitles),
                     [&](const PictureTitle& title) { return preset.name == QLatin1String(title.name); });
    return it == std::end(pictureTitles) ? preset.name : hostText(QString::fromUtf8(it->title));
}

QString wallText(const Preset& wall)
{
    return wall.name + QLatin1String("   ") +
           hostText(QStringLiteral("%1 x %2 pixels, %3 x %4 cabinets"))
               .arg(wall.resolution.width())
               .arg(wall.resolution.height())
               .arg(wall.cabinets.width())
               .arg(wall.cabinets.height());
}

QImage drawnPreset(const TestChartToolsData& record, const MarkerData& markers, const ChartCaptions& captions,
                   qreal ratio)
{
    const QImage chart = ChartPicture(record, captions, markers).image();
    QImage picture = chart.scaled(presetPictureSize * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QPainter painter(&picture);
    painter.setPen(QColor(128, 128, 128)); // a white chart stands out from a light list
    painter.drawRect(picture.rect().adjusted(0, 0, -1, -1));
    painter.end();
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
    setWindowTitle(hostTitle(QStringLiteral("New from…")));
    for (const Preset& preset : presets()) {
        if (preset.isWall())
            m_walls->addItem(wallText(preset), preset.name);
    }
    auto* standard = new QListWidgetItem(hostText(QStringLiteral("Standard")), m_pictures);
    standard->setData(Qt::UserRole, QString());
    for (const Preset& preset : presets()) {
        if (preset.isWall())
            continue;
        auto* item = new QListWidgetItem(titleOf(preset), m_pictures);
        item->setData(Qt::UserRole, preset.name);
        item->setToolTip(preset.name); // as the command line has it
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
    const QSize cell = m_pictures->gridSize();
    m_pictures->setMinimumSize(cell.width() + 40, cell.height());
    auto* buttons = new QDialogButtonBox;
    auto* create = buttons->addButton(hostText(QStringLiteral("New chart")), QDialogButtonBox::AcceptRole);
    buttons->addButton(
        QDialogButtonBox::Cancel); // Tab would jump over what is there before the default button
    const auto all = buttons->buttons();
    for (QAbstractButton* button : all)
        button->setToolTip(button->text());
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_walls);
    layout->addWidget(m_pictures, 1);
    layout->addWidget(buttons);
    create->setDefault(true); // which a window that it is not in would not know
    m_pictures->setFocus();
    DeskDialogs::resizeWithinScreen(this, QSize(4 * cell.width() + 60, 3 * cell.height() + 100));
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

MarkerData NewFromDialog::markersOf(int picture) const
{
    const Preset* content = findPreset(m_pictures->item(picture)->data(Qt::UserRole).toString());
    return content ? content->markers : MarkerData();
}

TestChartToolsData NewFromDialog::record() const
{
    return recordOf(m_pictures->currentRow());
}

MarkerData NewFromDialog::markers() const
{
    return markersOf(m_pictures->currentRow());
}

void NewFromDialog::drawPictures()
{
    m_pool.clear();
    ++m_round;
    const qreal ratio = devicePixelRatioF();
    for (int row = 0; row < m_pictures->count(); ++row) {
        m_pool.start([this, row, ratio, round = m_round, record = recordOf(row), markers = markersOf(row),
                      captions = ChartCaptions::current()] {
            const QImage picture = drawnPreset(record, markers, captions, ratio);
            const auto show = [this, row, round, picture] {
                if (round == m_round)
                    m_pictures->item(row)->setIcon(QIcon(QPixmap::fromImage(picture)));
            };
            QMetaObject::invokeMethod(this, show, Qt::QueuedConnection);
        });
    }
}
