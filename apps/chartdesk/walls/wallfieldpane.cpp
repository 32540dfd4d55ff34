#include "wallfieldpane.h"

#include "hosttext.h"
#include "wallcanvas.h"
#include "wallmodel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>

using namespace vardeno::walls;

namespace {

constexpr int widestColumn = 32768; // of a document
constexpr int mostColumns = 1000;

CablePath& dataPathOf(WallDocument& wall)
{
    return wall.data.path;
}

CablePath& powerPathOf(WallDocument& wall)
{
    return wall.power.path;
}

/// A field of the wall as a number: what it is, and the wall with another one.
template <typename Field>
std::pair<std::function<int(const WallDocument&)>, std::function<WallDocument(const WallDocument&, int)>>
fieldOfWall(Field field)
{
    const auto value = [field](const WallDocument& wall) {
        WallDocument copy = wall;
        return int(field(copy));
    };
    const auto change = [field](WallDocument wall, int number) {
        auto& target = field(wall);
        target = static_cast<std::decay_t<decltype(target)>>(number);
        return wall;
    };
    return {value, change};
}

} // namespace

WallFieldPane::WallFieldPane(WallModel* model, WallCanvas* canvas, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_canvas(canvas)
{
    setLayout(new QVBoxLayout);
    createSelection();
    createCables();
    createLayers();
    static_cast<QVBoxLayout*>(layout())->addStretch(1);
    connect(model, &WallModel::changed, this, &WallFieldPane::load);
    connect(canvas, &WallCanvas::selectionChanged, this, &WallFieldPane::load);
    retranslate();
    load();
}

Place WallFieldPane::first() const
{
    return hasSelection() ? *m_canvas->selection().begin() : Place();
}

bool WallFieldPane::hasSelection() const
{
    return !m_canvas->selection().empty();
}

void WallFieldPane::beginGroup(const char* source)
{
    auto* group = new QGroupBox;
    m_form = new QFormLayout(group);
    m_form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_groups.emplace_back(group, source);
    layout()->addWidget(group);
}

void WallFieldPane::add(QWidget* control, const char* source, std::function<void()> load,
                        std::vector<const char*> choices)
{
    if (qobject_cast<QCheckBox*>(control)) {
        m_form->addRow(control);
    } else {
        auto* label = new QLabel;
        label->setBuddy(control);
        m_form->addRow(label, control);
    }
    m_rows.push_back({control, source, std::move(load), std::move(choices)});
}

void WallFieldPane::addNumber(const char* name, const char* source, int least, int most, const Value& value,
                              const Change& change)
{
    auto* entry = new QSpinBox;
    entry->setObjectName(QLatin1String(name));
    entry->setRange(least, most);
    entry->setKeyboardTracking(false);
    connect(entry, qOverload<int>(&QSpinBox::valueChanged), this, [=](int number) {
        m_model->change(hostText(QLatin1String(source)), change(m_model->wall(), number),
                        QLatin1String(name));
    });
    add(entry, source, [=] { entry->setValue(value(m_model->wall())); });
}

void WallFieldPane::addChoice(const char* name, const char* source, const std::vector<const char*>& choices,
                              const Value& value, const Change& change)
{
    auto* entry = new QComboBox;
    entry->setObjectName(QLatin1String(name));
    for (std::size_t i = 0; i < choices.size(); ++i)
        entry->addItem(QString());
    connect(entry, qOverload<int>(&QComboBox::activated), this, [=](int index) {
        m_model->change(hostText(QLatin1String(source)), change(m_model->wall(), index));
    });
    add(
        entry, source, [=] { entry->setCurrentIndex(value(m_model->wall())); }, choices);
}

void WallFieldPane::addSwitch(const char* name, const char* source, const Value& value, const Change& change)
{
    auto* entry = new QCheckBox;
    entry->setObjectName(QLatin1String(name));
    connect(entry, &QCheckBox::clicked, this, [=](bool on) {
        m_model->change(hostText(QLatin1String(source)), change(m_model->wall(), int(on)));
    });
    add(entry, source, [=] { entry->setChecked(value(m_model->wall()) != 0); });
}

void WallFieldPane::addText(const char* name, const char* source,
                            std::function<std::string(const Wall&)> value,
                            std::function<Wall(const Wall&, const std::string&)> change)
{
    constexpr int longest = 100; // of a document
    auto* entry = new QLineEdit;
    entry->setObjectName(QLatin1String(name));
    entry->setMaxLength(longest);
    connect(entry, &QLineEdit::editingFinished, this, [=] {
        if (entry->isModified())
            m_model->change(hostText(QLatin1String(source)),
                            change(m_model->wall(), entry->text().toStdString()));
        entry->setModified(false);
    });
    add(entry, source, [=] {
        if (!entry->isModified())
            entry->setText(QString::fromStdString(value(m_model->wall())));
    });
}

void WallFieldPane::createSelection()
{
    beginGroup(hostSource("Wall"));
    addText(
        "wallName", hostSource("Name"), [](const Wall& wall) { return wall.name; },
        [](Wall wall, const std::string& name) {
            wall.name = name;
            return wall;
        });
    addNumber(
        "wallColumns", hostSource("Columns"), 1, mostColumns,
        [](const Wall& wall) { return wall.columnWidths.count(); },
        [](const Wall& wall, int count) { return WallEdit::withGrid(wall, count, wall.rowHeights.count()); });
    addNumber(
        "wallRows", hostSource("Rows"), 1, mostColumns,
        [](const Wall& wall) { return wall.rowHeights.count(); },
        [](const Wall& wall, int count) {
            return WallEdit::withGrid(wall, wall.columnWidths.count(), count);
        });
    beginGroup(hostSource("Selected cabinets"));
    const std::size_t before = m_rows.size();
    addNumber(
        "cabinetWidth", hostSource("Width of the columns"), 1, widestColumn,
        [this](const Wall& wall) { return wall.columnWidths.pixels[std::size_t(first().column)]; },
        [this](const Wall& wall, int pixels) {
            return WallEdit::withWidth(wall, m_canvas->selection(), pixels);
        });
    addNumber(
        "cabinetHeight", hostSource("Height of the rows"), 1, widestColumn,
        [this](const Wall& wall) { return wall.rowHeights.pixels[std::size_t(first().row)]; },
        [this](const Wall& wall, int pixels) {
            return WallEdit::withHeight(wall, m_canvas->selection(), pixels);
        });
    addText(
        "cabinetName", hostSource("Name of the cabinet"),
        [this](const Wall& wall) { return hasSelection() ? WallEdit::exceptionAt(wall, first()).name : ""; },
        [this](const Wall& wall, const std::string& name) {
            return hasSelection() ? WallEdit::named(wall, first(), name) : wall;
        });
    addSwitch(
        "cabinetMissing", hostSource("No cabinet here"),
        [this](const Wall& wall) {
            return int(hasSelection() && WallEdit::exceptionAt(wall, first()).missing);
        },
        [this](const Wall& wall, int on) {
            return WallEdit::withMissing(wall, m_canvas->selection(), on != 0);
        });
    for (std::size_t i = before; i < m_rows.size(); ++i)
        m_ofSelection.push_back(m_rows[i].control);
}

void WallFieldPane::addPath(const char* name, CablePath& (*path)(Wall&))
{
    const QByteArray begin(name);
    const auto named = [&begin](const char* end) { return begin + end; };
    const auto corner = fieldOfWall([path](Wall & wall) -> auto& { return path(wall).corner; });
    addChoice(named("Corner"), hostSource("Begins at"),
              {hostSource("Top left"), hostSource("Top right"), hostSource("Bottom left"),
               hostSource("Bottom right")},
              corner.first, corner.second);
    const auto direction = fieldOfWall([path](Wall & wall) -> auto& { return path(wall).direction; });
    addChoice(named("Direction"), hostSource("Goes along"), {hostSource("Rows"), hostSource("Columns")},
              direction.first, direction.second);
    const auto pattern = fieldOfWall([path](Wall & wall) -> auto& { return path(wall).pattern; });
    addChoice(named("Pattern"), hostSource("Pattern"),
              {hostSource("Back and forth"), hostSource("One way"), hostSource("Each by itself")},
              pattern.first, pattern.second);
}

void WallFieldPane::createCables()
{
    const auto number = [this](const char* name, const char* source, int least, int most, auto field) {
        const auto [value, change] = fieldOfWall(field);
        addNumber(name, source, least, most, value, change);
    };
    beginGroup(hostSource("Data cables"));
    addPath("data", &dataPathOf);
    number("dataPortPixels", hostSource("Pixels of a port"), 1, 100000000,
           [](Wall& wall) -> int& { return wall.data.portPixels; });
    number("dataBitDepth", hostSource("Bits of a color"), 8, 16,
           [](Wall& wall) -> int& { return wall.data.bitDepth; });
    number("dataFrameRate", hostSource("Frames per second"), 1, 1000,
           [](Wall& wall) -> int& { return wall.data.frameRate; });
    const auto backup = fieldOfWall([](Wall& wall) -> bool& { return wall.data.backup; });
    addSwitch("dataBackup", hostSource("Backup ports"), backup.first, backup.second);
    beginGroup(hostSource("Power cables"));
    addPath("power", &powerPathOf);
    number("powerWatts", hostSource("Watts of a cabinet"), 0, 100000,
           [](Wall& wall) -> int& { return wall.physical.watts; });
    number("powerCircuit", hostSource("Watts of a circuit"), 1, 1000000,
           [](Wall& wall) -> int& { return wall.power.circuitWatts; });
}

void WallFieldPane::createLayers()
{
    beginGroup(hostSource("Drawn over the chart"));
    const auto layer = [this](const char* name, const char* source, bool WallSwitches::*member) {
        const auto [value, change] =
            fieldOfWall([member](Wall& wall) -> bool& { return wall.layers.*member; });
        addSwitch(name, source, value, change);
    };
    layer("layerBlackHoles", hostSource("Black where no cabinet is"), &WallSwitches::blackHoles);
    layer("layerOutlines", hostSource("Outlines"), &WallSwitches::outlines);
    layer("layerFrames", hostSource("Frames of one pixel"), &WallSwitches::frames);
    layer("layerNames", hostSource("Names of cabinets"), &WallSwitches::names);
    layer("layerCoordinates", hostSource("Coordinates"), &WallSwitches::coordinates);
    layer("layerDataRuns", hostSource("Data cables"), &WallSwitches::dataRuns);
    layer("layerPowerRuns", hostSource("Power cables"), &WallSwitches::powerRuns);
}

void WallFieldPane::load()
{
    for (const Row& row : m_rows) {
        const QSignalBlocker blocker(row.control);
        row.load();
    }
    for (QWidget* control : m_ofSelection)
        control->setEnabled(hasSelection());
}

/// That all controls begin below one another, whatever their group.
void WallFieldPane::alignLabels()
{
    std::vector<QLabel*> labels;
    int widest = 0;
    for (const Row& row : m_rows) {
        auto* form = qobject_cast<QFormLayout*>(row.control->parentWidget()->layout());
        auto* label = form ? qobject_cast<QLabel*>(form->labelForField(row.control)) : nullptr;
        if (!label)
            continue;
        labels.push_back(label);
        widest = std::max(widest, label->sizeHint().width());
    }
    for (QLabel* label : labels)
        label->setMinimumWidth(widest);
}

void WallFieldPane::retranslate()
{
    for (const auto& [group, source] : m_groups)
        group->setTitle(hostText(QLatin1String(source)));
    for (const Row& row : m_rows) {
        const QString text = hostText(QLatin1String(row.source));
        row.control->setAccessibleName(text);
        row.control->setToolTip(text);
        if (auto* box = qobject_cast<QCheckBox*>(row.control)) {
            box->setText(text);
        } else if (auto* form = qobject_cast<QFormLayout*>(row.control->parentWidget()->layout())) {
            static_cast<QLabel*>(form->labelForField(row.control))->setText(text);
        }
        if (auto* choice = qobject_cast<QComboBox*>(row.control)) {
            for (int i = 0; i < choice->count(); ++i)
                choice->setItemText(i, hostText(QLatin1String(row.choices[std::size_t(i)])));
        }
    }
    alignLabels();
}
