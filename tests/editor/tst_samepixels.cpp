#include "charttool.h"
#include "randomrecords.h"

#include <referencechart.h>

#include <QStackedWidget>
#include <QTemporaryDir>

using namespace charttool;

namespace {

constexpr int largestText = 100; ///< pixels; the reference takes them one by one off what does not fit

constexpr RecordLimits recordLimits = {QSize(700, 500), 40, largestText, 700};

/// A picture of which no two pixels are the same, so that none can be taken for another.
QImage picture(const QSize& size, bool translucent)
{
    QImage image(size, translucent ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qRgba(x, y, (x + y) % 256, translucent ? (x * 7 + y * 3) % 256 : 255));
    }
    return image;
}

/// The editor and the reference, side by side.
class Charts
{
public:
    Charts()
    {
        tool.loadLanguageFiles({sourcePath("translations/en.ts")});
        tool.switchLanguage(QStringLiteral("en"));
        reference.texts->setCaptions(QStringLiteral("Resolution"), QStringLiteral("Cabinets"));
    }

    void apply(const TestChartToolsData& record)
    {
        tool.setTestChartToolsData(record);
        reference.apply(record);
    }

    /// What the inline panel shows at first is not what its layer has, which is told of changes only.
    void leaveDefaults()
    {
        TestChartToolsData record;
        record.inLineData.circleSize = 541;
        record.inLineData.circleWidth = 3;
        record.inLineData.diagonalWidth = 11;
        record.selfData.selfTextSize = record.selfData.resolutionTextSize = 20;
        record.logoData.textSize = 20;
        apply(record);
    }

    QString chartDifference() { return imageDifference(user.shownChart(), reference.snapshot()); }

    /// Those of the visible layers, a line each.
    QString layerDifferences() const
    {
        const std::vector<std::pair<LayerPainter*, ReferenceLayer*>> layers = {
            {user.painter<PaintBasicWidget>(), reference.basic},
            {user.painter<PaintRowColSequeWidget>(), reference.sequence},
            {user.painter<PaintInLineWidget>(), reference.inLine},
            {user.painter<PaintSelfWidget>(), reference.texts},
            {user.painter<PaintPicLogoWidget>(), reference.pictureLogo},
            {user.painter<PaintTextLogoWidget>(), reference.textLogo},
            {user.painter<PaintPublicBrightWidget>(), reference.veil},
            {user.painter<PaintPublicWidget>(), reference.border}};
        QString differences;
        for (const auto& [painter, layer] : layers) {
            if (painter->isHidden() != layer->isHidden())
                differences += QStringLiteral("\n%1 is hidden in one").arg(layer->metaObject()->className());
            if (layer->isHidden())
                continue;
            const QString difference = imageDifference(layerImage(*painter), layerImage(*layer));
            if (!difference.isEmpty())
                differences += QStringLiteral("\n%1: %2").arg(painter->metaObject()->className(), difference);
        }
        return differences;
    }

    QString difference()
    {
        const QString ofChart = chartDifference();
        return ofChart + layerDifferences();
    }

    VTestChartTools tool;
    ReferenceChart reference;
    const User user{tool};
};

/// Everything of the chart that can be left out of it.
const std::vector<std::pair<const char*, void (*)(TestChartToolsData&)>> switches = {
    {"base pattern",
     [](TestChartToolsData& record) {
         record.basicData.chessChecked = true;
         record.basicData.colorBarChecked = false;
         record.basicData.oddColor = record.basicData.evenColor = {0, 0, 0, 255};
     }},
    {"circles", [](TestChartToolsData& record) { record.inLineData.showCircle = false; }},
    {"diagonals", [](TestChartToolsData& record) { record.inLineData.showDiagonal = false; }},
    {"cabinet labels", [](TestChartToolsData& record) { record.inLineData.showSerialNumber = false; }},
    {"custom text", [](TestChartToolsData& record) { record.selfData.showSelfText = false; }},
    {"information line", [](TestChartToolsData& record) { record.selfData.showResolution = false; }},
    {"logo", [](TestChartToolsData& record) { record.logoData.showLogo = false; }},
    {"veil", [](TestChartToolsData& record) { record.publicData.brightness = 100; }},
    {"border", [](TestChartToolsData& record) { record.publicData.showOutBorder = false; }},
};

/// What must be switched off in `record` for the charts to be the same.
QString culprits(Charts& charts, const TestChartToolsData& record)
{
    QStringList names;
    for (const auto& [name, switchOff] : switches) {
        TestChartToolsData without = record;
        switchOff(without);
        charts.apply(without);
        if (charts.chartDifference().isEmpty())
            names.append(QLatin1String(name));
    }
    return names.isEmpty() ? QStringLiteral("no single layer") : names.join(QStringLiteral(" or "));
}

/// Changes of a single value, made to the painter and to its reference alike.
class Changes
{
public:
    Changes(Charts& charts, RandomRecords& random, QString picturePath);

    /// Makes a random one, and returns its name.
    QString makeOne()
    {
        const auto& [name, make] = m_changes[random.number(0, int(m_changes.size()) - 1)];
        make();
        return name;
    }

private:
    template <typename Painter, typename Layer>
    struct Both
    {
        Painter* painter;
        Layer* layer;
    };
    template <typename Painter, typename Layer>
    Both<Painter, Layer> both(Layer* layer)
    {
        return {charts.user.painter<Painter>(), layer};
    }

    template <typename Pair, typename Value, typename Set>
    void add(const char* name, Pair pair, Value value, Set set)
    {
        m_changes.emplace_back(QLatin1String(name), [pair, value, set] {
            const auto drawn = value();
            set(*pair.painter, drawn);
            set(*pair.layer, drawn);
        });
    }
    template <typename Pair, typename Set>
    void flag(const char* name, Pair pair, Set set)
    {
        add(
            name, pair, [this] { return random.flag(); }, set);
    }
    template <typename Pair, typename Set>
    void color(const char* name, Pair pair, Set set)
    {
        add(
            name, pair, [this] { return random.color(); }, set);
    }
    template <typename Pair, typename Set>
    void number(const char* name, Pair pair, int least, int most, Set set)
    {
        add(
            name, pair, [this, least, most] { return random.number(least, most); }, set);
    }
    /// One of `count` known values from 0, now and then another one.
    template <typename Pair, typename Set>
    void choice(const char* name, Pair pair, int count, Set set)
    {
        add(
            name, pair,
            [this, count] { return random.number(0, 9) == 0 ? count : random.number(0, count - 1); }, set);
    }
    template <typename Pair>
    void grid(Pair pair)
    {
        const auto count = [this] { return random.cabinets(); };
        add("rows", pair, count, [](auto& layer, int rows) { layer.setRows(ushort(rows)); });
        add("columns", pair, count, [](auto& layer, int columns) { layer.setColumns(ushort(columns)); });
    }
    template <typename Pair>
    void placement(Pair pair)
    {
        choice("logo anchor", pair, 5, [](auto& layer, int index) { layer.setPosition(index); });
        number("logo x", pair, -40, 100, [](auto& layer, int x) { layer.setMoveX(x); });
        number("logo y", pair, -40, 100, [](auto& layer, int y) { layer.setMoveY(y); });
        number("logo opacity", pair, 0, 100, [](auto& layer, int percent) { layer.setOpacity(percent); });
    }

    void addBasic();
    void addPublic();
    void addInLine();
    void addSequence();
    void addTexts();
    void addLogos();
    void addSources();
    void showLogo(int choice);

    Charts& charts;
    RandomRecords& random;
    QString picturePath;
    std::vector<std::pair<QString, std::function<void()>>> m_changes;
};

Changes::Changes(Charts& charts, RandomRecords& random, QString picturePath)
    : charts(charts)
    , random(random)
    , picturePath(std::move(picturePath))
{
    addBasic();
    addPublic();
    addInLine();
    addSequence();
    addTexts();
    addLogos();
    addSources();
}

void Changes::addBasic()
{
    const auto basic = both<PaintBasicWidget>(charts.reference.basic);
    grid(basic);
    choice("base mode", basic, 3, [](auto& layer, int mode) { layer.setMode(uint(mode)); });
    color("odd colour", basic, [](auto& layer, const QColor& color) { layer.setOddColor(color); });
    color("even colour", basic, [](auto& layer, const QColor& color) { layer.setEvenColor(color); });
}

void Changes::addPublic()
{
    const auto veil = both<PaintPublicBrightWidget>(charts.reference.veil);
    number("brightness", veil, 0, 100, [](auto& layer, int value) { layer.setBrightness(ushort(value)); });
    const auto border = both<PaintPublicWidget>(charts.reference.border);
    grid(border);
    flag("border", border, [](auto& layer, bool on) { layer.setOutLineVisible(on); });
    number("border width", border, 0, 100, [](auto& layer, int width) { layer.setOutLineWidth(width); });
    color("border colour", border, [](auto& layer, const QColor& color) { layer.setOutLineColor(color); });
}

void Changes::addInLine()
{
    const auto inLine = both<PaintInLineWidget>(charts.reference.inLine);
    grid(inLine);
    flag("circles", inLine, [](auto& layer, bool on) { layer.setCircleVisible(on); });
    color("circle colour", inLine, [](auto& layer, const QColor& color) { layer.setCircleColor(color); });
    number("circle width", inLine, 0, 100, [](auto& layer, int w) { layer.setCircleLineWidth(ushort(w)); });
    number("radius", inLine, 0, 100, [](auto& layer, int radius) { layer.setCircleRadius(ushort(radius)); });
    number("large radius", inLine, 12000, 65535,
           [](auto& layer, int radius) { layer.setCircleRadius(ushort(radius)); });
    flag("diagonals", inLine, [](auto& layer, bool on) { layer.setDiagonalVisible(on); });
    color("diagonal colour", inLine, [](auto& layer, const QColor& color) { layer.setDiagonalColor(color); });
    number("diagonal width", inLine, 0, 100,
           [](auto& layer, int width) { layer.setDiagonalLineWidth(ushort(width)); });
    flag("labels", inLine, [](auto& layer, bool on) { layer.setSerialVisible(on); });
    color("label colour", inLine, [](auto& layer, const QColor& color) { layer.setSerialColor(color); });
    number("label size", inLine, 0, 24, [](auto& layer, int size) { layer.setSerialSize(ushort(size)); });
    choice("label mode", inLine, 3, [](auto& layer, int mode) { layer.setSerialMode(uint(mode)); });
    choice("label sort", inLine, 4, [](auto& layer, int sort) { layer.setSerialSort(uint(sort)); });
    choice("label position", inLine, 3,
           [](auto& layer, int position) { layer.setSerialPosition(uint(position)); });
}

void Changes::addSequence()
{
    const auto sequence = both<PaintRowColSequeWidget>(charts.reference.sequence);
    grid(sequence);
    flag("grid lines", sequence, [](auto& layer, bool on) { layer.setRowColVisible(on); });
    color("grid colour", sequence, [](auto& layer, const QColor& color) { layer.setRowColColor(color); });
    flag("sequence", sequence, [](auto& layer, bool on) { layer.setSequeVisible(on); });
    color("sequence colour", sequence, [](auto& layer, const QColor& color) { layer.setSequeColor(color); });
    number("sequence size", sequence, 0, 24, [](auto& layer, int size) { layer.setSequeSize(ushort(size)); });
    choice("sequence mode", sequence, 3, [](auto& layer, int mode) { layer.setShowModel(mode); });
    choice("sequence sort", sequence, 4, [](auto& layer, int sort) { layer.setSortType(sort); });
    choice("sequence place", sequence, 3, [](auto& layer, int place) { layer.setLocation(place); });
}

void Changes::addTexts()
{
    const auto texts = both<PaintSelfWidget>(charts.reference.texts);
    grid(texts);
    flag("custom text on", texts, [](auto& layer, bool on) { layer.setSelfTextVisible(on); });
    add(
        "custom text", texts, [this] { return random.text(50); },
        [](auto& layer, const QString& text) { layer.setSelfText(text); });
    color("custom text colour", texts,
          [](auto& layer, const QColor& color) { layer.setSelfTextColor(color); });
    number("custom text size", texts, 0, largestText,
           [](auto& layer, int size) { layer.setSelfTextSize(ushort(size)); });
    flag("information line", texts, [](auto& layer, bool on) { layer.setResolutionVisible(on); });
    color("information colour", texts,
          [](auto& layer, const QColor& color) { layer.setResolutionColor(color); });
    number("information size", texts, 0, largestText,
           [](auto& layer, int size) { layer.setResolutionSize(ushort(size)); });
    flag("cabinet count", texts, [](auto& layer, bool on) { layer.setBoxNumVisible(on); });
    color("count colour", texts, [](auto& layer, const QColor& color) { layer.setBoxNumColor(color); });
}

void Changes::addLogos()
{
    const auto ofPicture = both<PaintPicLogoWidget>(charts.reference.pictureLogo);
    placement(ofPicture);
    number("logo scale", ofPicture, 0, 120, [](auto& layer, int percent) { layer.setScale(percent); });
    add(
        "logo picture", ofPicture, [this] { return random.picture(); },
        [](auto& layer, const std::string& path) { layer.setPicPath(path); });
    const auto ofText = both<PaintTextLogoWidget>(charts.reference.textLogo);
    placement(ofText);
    add(
        "logo text", ofText, [this] { return random.text(8); },
        [](auto& layer, const QString& text) { layer.setText(text); });
    color("logo colour", ofText, [](auto& layer, const QColor& color) { layer.setTextColor(color); });
    number("logo text size", ofText, 0, largestText,
           [](auto& layer, int pixels) { layer.setTextSize(pixels); });
    for (int share = 0; share < 6; ++share) // each is seen half of the time
        m_changes.emplace_back(QStringLiteral("logo style"), [this] { showLogo(random.number(0, 4)); });
}

/// 0 and 1 the picture, 2 and 3 the text, 4 none.
void Changes::showLogo(int choice)
{
    auto* const ofPicture = charts.user.painter<PaintPicLogoWidget>();
    auto* const stack = qobject_cast<QStackedWidget*>(ofPicture->parentWidget());
    stack->setCurrentIndex(choice / 2 == 1 ? 1 : 0);
    ofPicture->setVisible(choice / 2 == 0);
    charts.user.painter<PaintTextLogoWidget>()->setVisible(choice / 2 == 1);
    charts.reference.showLogo(choice / 2 == 0   ? ReferenceChart::Logo::Picture
                              : choice / 2 == 1 ? ReferenceChart::Logo::Text
                                                : ReferenceChart::Logo::None);
}

/// What layers are drawn from besides their own values, of whose changes no setter tells them.
void Changes::addSources()
{
    m_changes.emplace_back(QStringLiteral("resolution"), [this] {
        PublicChartData data = charts.user.publicPanel()->getData();
        data.resolutionWidth = random.number(16, 320);
        data.resolutionHeight = random.number(16, 240);
        charts.user.publicPanel()->setData(data);
        charts.reference.setChartSize({data.resolutionWidth, data.resolutionHeight});
    });
    m_changes.emplace_back(QStringLiteral("colour bar"), [this] {
        const std::map<int, QColor> colors = random.colors();
        charts.user.stripeList()->clear();
        for (const auto& [row, color] : colors)
            (new QListWidgetItem(charts.user.stripeList()))->setBackground(QBrush(color));
        charts.reference.setColorBar(colors);
    });
    m_changes.emplace_back(QStringLiteral("picture file"), [this] {
        picture({random.number(1, 120), random.number(1, 120)}, random.flag()).save(picturePath);
    });
}

} // namespace

/// The library and the reference, which does everything afresh and in the straightforward way, give the same
/// pixels.
class TestSamePixels : public TestCase
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    QString changingPicture() const { return m_folder.filePath("changing.png"); }

    std::vector<std::string> pictures() const
    {
        return {m_folder.filePath("opaque.png").toStdString(),
                m_folder.filePath("translucent.png").toStdString(),
                m_folder.filePath("missing.png").toStdString(), changingPicture().toStdString()};
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(picture({61, 40}, false).save(m_folder.filePath("opaque.png")));
        QVERIFY(picture({250, 131}, true).save(m_folder.filePath("translucent.png")));
        QVERIFY(picture({33, 66}, true).save(changingPicture()));
    }

    /// Before any record has come, each layer has values of its own.
    void newTool()
    {
        Charts charts;
        charts.user.painter<PaintSelfWidget>()->setSelfTextSize(40);
        charts.reference.texts->setSelfTextSize(40);
        charts.tool.slotGetHeightWidth();
        charts.reference.setChartSize({1920, 1080});
        QCOMPARE(charts.difference(), QString());
    }

    void records()
    {
        Charts charts;
        charts.leaveDefaults();
        RandomRecords records(20241107, pictures(), recordLimits);
        for (int i = 0; i < 600; ++i) {
            TestChartToolsData record = records.next();
            if (i % 100 == 99) {
                record.publicData.resolutionWidth = 1920;
                record.publicData.resolutionHeight = 1080;
            }
            charts.apply(record);
            const QString difference = charts.difference();
            if (!difference.isEmpty())
                QFAIL(qPrintable(QStringLiteral("record %1, %2 x %3: %4\nthe same without: %5")
                                     .arg(i)
                                     .arg(record.publicData.resolutionWidth)
                                     .arg(record.publicData.resolutionHeight)
                                     .arg(difference, culprits(charts, record))));
        }
    }

    /// A layer that goes on showing what it showed before a change would differ.
    void singleChanges()
    {
        Charts charts;
        charts.leaveDefaults();
        RandomRecords random(20241108, pictures(), recordLimits);
        Changes changes(charts, random, changingPicture());
        for (int i = 0; i < 1500; ++i) {
            const QString change = changes.makeOne();
            charts.tool.slotGetHeightWidth();
            const QString difference = charts.difference();
            if (!difference.isEmpty())
                QFAIL(qPrintable(QStringLiteral("change %1, %2: %3").arg(i).arg(change, difference)));
        }
    }
};

VD_TEST_MAIN(TestSamePixels)
#include "tst_samepixels.moc"
