#include "expectedlabels.h"
#include "layerprotocol.h"
#include "paintbasicwidget.h"
#include "paintrowcolsequewidget.h"
#include "paintselfwidget.h"
#include "rowcolsequesettingbox.h"
#include "testcase.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QGridLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>

using namespace vardeno::testcharttools;

using SequenceChange = std::function<void(PaintRowColSequeWidget& layer)>;
Q_DECLARE_METATYPE(SequenceChange)

namespace {

const QSize sequenceChart(1600, 900);

/// The layer as a fresh painter with lines and labels draws it after `change`.
QImage sequenceAfter(const SequenceChange& change)
{
    PaintRowColSequeWidget layer;
    layer.setRowColVisible(true);
    layer.setSequeVisible(true);
    change(layer);
    return pictureAt(sequenceChart, layer);
}

void press(QWidget* control)
{
    QTest::mouseClick(control, Qt::LeftButton);
}

void enter(QSpinBox* entry, int value)
{
    entry->setFocus();
    entry->selectAll();
    QTest::keyClicks(entry, QString::number(value));
    QTest::keyClick(entry, Qt::Key_Return);
}

/// Answers the next colour dialog that opens, and remembers what it looked like.
class DialogAnswer : public QObject
{
public:
    /// An invalid colour cancels the dialog.
    explicit DialogAnswer(const QColor& color)
    {
        connect(&m_timer, &QTimer::timeout, this, [this, color] { answer(color); });
        m_timer.start(5);
    }

    bool seen = false;
    QString title;
    QColor initialColor;
    QWidget* owner = nullptr;

private:
    void answer(const QColor& color)
    {
        auto* dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
        if (!dialog || !dialog->windowHandle()->isExposed())
            return;
        m_timer.stop();
        seen = true;
        title = dialog->windowTitle();
        initialColor = dialog->currentColor();
        owner = dialog->parentWidget();
        if (!color.isValid()) {
            dialog->reject();
            return;
        }
        dialog->setCurrentColor(color);
        dialog->accept();
    }

    QTimer m_timer;
};

/// The panel in a shown window, with the painters it drives.
struct ShownEditor
{
    explicit ShownEditor(bool withPainters = true)
    {
        for (QLabel* layer : QList<QLabel*>{&layer, &basic, &self})
            pictureAt(sequenceChart, *layer);
        if (withPainters) {
            panel.setPaintRowColSequeWidget(&layer);
            panel.setPaintBasicWidget(&basic);
            panel.setPaintSelfWidget(&self);
            panel.initShow();
            signalCount = 0;
        }
        auto* column = new QVBoxLayout(&window);
        column->addWidget(&panel);
        window.show();
        window.activateWindow();
    }

    QLabel* caption(const char* text) const
    {
        for (QLabel* label : panel.findChildren<QLabel*>()) {
            if (label->text() == QLatin1String(text))
                return label;
        }
        return nullptr;
    }
    QCheckBox* rowColCheck() const { return panel.findChildren<QCheckBox*>().value(0); }
    QCheckBox* sequeCheck() const { return panel.findChildren<QCheckBox*>().value(1); }
    QSpinBox* entry(const char* name) const { return panel.findChild<QSpinBox*>(QLatin1String(name)); }
    QSpinBox* rows() const { return entry("_rowSpinBox"); }
    QSpinBox* columns() const { return entry("_colSpinBox"); }
    QSpinBox* size() const { return entry("_sequeSpinBox"); }
    QPushButton* color(const char* name) const { return panel.findChild<QPushButton*>(QLatin1String(name)); }
    QPushButton* rowColor() const { return color("_rowColorButton"); }
    QPushButton* sequeColor() const { return color("_sequeColorButton"); }
    QList<QRadioButton*> models() const { return panel.findChildren<QRadioButton*>(); }
    /// By its object name, or by its class and its index among those.
    QWidget* control(const QByteArray& name) const
    {
        const int index = name.right(1).toInt();
        if (name.startsWith("QCheckBox"))
            return panel.findChildren<QCheckBox*>().value(index);
        if (name.startsWith("QRadioButton"))
            return models().value(index);
        return panel.findChild<QWidget*>(QLatin1String(name));
    }

    /// Column, row and spans of the grid's item that the widget is or stands in.
    QRect gridCell(QWidget* widget) const
    {
        const auto* grid = qobject_cast<QGridLayout*>(panel.layout());
        for (int i = 0; grid && i < grid->count(); ++i) {
            QLayoutItem* item = grid->itemAt(i);
            if (item->widget() != widget && !(item->layout() && item->layout()->indexOf(widget) >= 0))
                continue;
            int rowSpan = 0;
            int columnSpan = 0;
            int row = 0;
            int column = 0;
            grid->getItemPosition(i, &row, &column, &rowSpan, &columnSpan);
            return {column, row, columnSpan, rowSpan};
        }
        return {};
    }

    QComboBox* combo(const char* name) const { return panel.findChild<QComboBox*>(QLatin1String(name)); }
    QComboBox* location() const { return combo("_localComboBox"); }
    QComboBox* sorting() const { return combo("_sortComboBox"); }

    QList<QWidget*> gridControls() const { return {rows(), columns(), rowColor()}; }
    QList<QWidget*> labelControls() const
    {
        return {size(), sequeColor(), models().at(0), models().at(1), models().at(2), sorting(), location()};
    }

    QWidget window;
    PaintRowColSequeWidget layer;
    PaintBasicWidget basic;
    PaintSelfWidget self;
    RowColSequeSettingBox panel;
    int signalCount = 0;
    QMetaObject::Connection counting =
        QObject::connect(&panel, &RowColSequeSettingBox::rowColSignal, &panel, [this] { ++signalCount; });
};

int usableCount(const QList<QWidget*>& controls)
{
    return int(
        std::count_if(controls.begin(), controls.end(), [](QWidget* each) { return each->isEnabled(); }));
}

} // namespace

class TestRowColSequeSettingBox : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    void frame()
    {
        const ShownEditor shown;
        QCOMPARE(shown.panel.title(), QStringLiteral("rowcol serial num setting model"));
        QCOMPARE(shown.panel.minimumWidth(), 380);
        QCOMPARE(shown.panel.maximumWidth(), 380);
        for (const QWidget* child : shown.panel.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
            QVERIFY(shown.panel.rect().contains(child->geometry()));
    }

    /// In a font in which its captions take several lines.
    void heightWithoutALayout()
    {
        const QFont before = QApplication::font();
        QFont font = before;
        font.setPixelSize(16);
        QApplication::setFont(font);
        QWidget host;
        RowColSequeSettingBox panel(&host);
        panel.adjustSize();
        QApplication::setFont(before);
        QVERIFY2(panel.height() >= panel.heightForWidth(380), qPrintable(QString::number(panel.height())));
    }

    void controlsStandBesideTheirCaptions_data()
    {
        QTest::addColumn<QByteArray>("caption");
        QTest::addColumn<QByteArray>("control"); // an object name, or a class and an index
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("captionColumn");
        QTest::addColumn<int>("controlColumn");
        const auto row = [](const char* caption, const char* control, int gridRow, int captionColumn,
                            int controlColumn) {
            QTest::newRow(caption) << QByteArray(caption) << QByteArray(control) << gridRow << captionColumn
                                   << controlColumn;
        };
        row("rowcol num", "QCheckBox 0", 0, 0, 0);
        row("row", "_rowSpinBox", 0, 1, 1);
        row("col", "_colSpinBox", 0, 2, 2);
        row("color", "_rowColorButton", 0, 3, 3);
        row("serial num", "QCheckBox 1", 1, 0, 0);
        row("seque size", "_sequeSpinBox", 1, 1, 1);
        row("seque color", "_sequeColorButton", 1, 3, 3);
        row("letter model", "QRadioButton 0", 2, 0, 0);
        row("num model", "QRadioButton 1", 2, 1, 1);
        row("letter-num model", "QRadioButton 2", 2, 2, 2);
        row("display location", "_localComboBox", 3, 1, 2);
        row("serial num sorting method", "_sortComboBox", 4, 1, 2);
    }

    void controlsStandBesideTheirCaptions()
    {
        QFETCH(QByteArray, caption);
        QFETCH(QByteArray, control);
        QFETCH(int, row);
        QFETCH(int, captionColumn);
        QFETCH(int, controlColumn);
        ShownEditor shown;
        QVERIFY(QTest::qWaitForWindowExposed(&shown.window));
        QWidget* widget = shown.control(control);
        QLabel* label = shown.caption(caption.constData());
        QVERIFY(widget);
        QVERIFY(label);
        auto* button = qobject_cast<QAbstractButton*>(widget);
        QVERIFY(!button || button->text().isEmpty());

        QCOMPARE(shown.gridCell(label), QRect(captionColumn, row, 1, 1));
        QCOMPARE(shown.gridCell(widget), QRect(controlColumn, row, controlColumn > captionColumn ? 2 : 1, 1));
        QVERIFY(widget->x() > label->geometry().right());
        QVERIFY(qAbs(widget->geometry().center().y() - label->geometry().center().y()) <= 2);
    }

    void entries_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<int>("maximum");
        QTest::addColumn<int>("value");
        QTest::newRow("rows") << QByteArray("_rowSpinBox") << 100 << 9;
        QTest::newRow("columns") << QByteArray("_colSpinBox") << 100 << 16;
        QTest::newRow("size") << QByteArray("_sequeSpinBox") << 500 << 15;
    }

    void entries()
    {
        QFETCH(QByteArray, name);
        QFETCH(int, maximum);
        QFETCH(int, value);
        const ShownEditor shown;
        const QSpinBox* entry = shown.entry(name.constData());
        QVERIFY(entry);
        QCOMPARE(entry->size(), QSize(55, 20));
        QCOMPARE(entry->minimum(), 1);
        QCOMPARE(entry->maximum(), maximum);
        QCOMPARE(entry->value(), value);
    }

    void otherControls()
    {
        const ShownEditor shown(false);
        QVERIFY(shown.rowColCheck()->isChecked());
        QVERIFY(shown.sequeCheck()->isChecked());
        QVERIFY(shown.models().at(0)->isChecked());
        for (const QPushButton* button : {shown.rowColor(), shown.sequeColor()}) {
            QCOMPARE(button->size(), QSize(25, 25));
            QCOMPARE(button->styleSheet(), QStringLiteral("background-color: #000000"));
        }
        const QStringList locations{QStringLiteral("in central"), QStringLiteral("left up right down"),
                                    QStringLiteral("left down right up")};
        const QStringList sorts{QStringLiteral("from up to down increase, frome left to right increase"),
                                QStringLiteral("from up to down increase, frome left to right decrease"),
                                QStringLiteral("from down to up increase, frome left to right increase"),
                                QStringLiteral("from down to up increase, frome left to right decrease")};
        for (const auto& [combo, items] :
             {std::pair(shown.location(), locations), std::pair(shown.sorting(), sorts)}) {
            QCOMPARE(combo->currentIndex(), 0);
            QCOMPARE(combo->count(), items.size());
            for (int i = 0; i < items.size(); ++i) {
                QCOMPARE(combo->itemText(i), items.at(i));
                QCOMPARE(combo->itemData(i), QVariant(i));
            }
        }
        QCOMPARE(usableCount(shown.gridControls() + shown.labelControls()), 10);
    }

    void initShowPushesTheState()
    {
        ShownEditor shown(false);
        const QImage transparent = layerImage(shown.layer);
        shown.panel.initShow();
        QCOMPARE(shown.signalCount, 0);
        shown.panel.setPaintRowColSequeWidget(&shown.layer);
        VD_COMPARE_IMAGES(layerImage(shown.layer), transparent);
        QCOMPARE(shown.signalCount, 0);
        shown.panel.initShow();
        QCOMPARE(shown.signalCount, 3);
        VD_COMPARE_IMAGES(layerImage(shown.layer), sequenceAfter([](PaintRowColSequeWidget&) {}));
    }

    void initShowPushesWhatIsSwitchedOff()
    {
        ShownEditor shown(false);
        const QImage transparent = layerImage(shown.layer);
        press(shown.rowColCheck());
        press(shown.sequeCheck());
        shown.layer.setRowColVisible(true);
        shown.layer.setSequeVisible(true);
        shown.layer.setShowModel(2);
        shown.panel.setPaintRowColSequeWidget(&shown.layer);
        shown.panel.initShow();
        VD_COMPARE_IMAGES(layerImage(shown.layer), transparent);
        shown.layer.setRowColVisible(true);
        shown.layer.setSequeVisible(true);
        VD_COMPARE_IMAGES(layerImage(shown.layer), sequenceAfter([](PaintRowColSequeWidget&) {}));
    }

    void lettersAreCheckedAtTheFirstShow()
    {
        ShownEditor shown(false);
        press(shown.models().at(1));
        shown.panel.setPaintRowColSequeWidget(&shown.layer);
        shown.layer.setShowModel(1);
        shown.panel.initShow();
        QVERIFY(shown.models().at(0)->isChecked());
        VD_COMPARE_IMAGES(layerImage(shown.layer), sequenceAfter([](PaintRowColSequeWidget&) {}));
        press(shown.models().at(1));
        press(shown.sequeCheck());
        press(shown.sequeCheck());
        QVERIFY(shown.models().at(1)->isChecked());
    }

    /// Unlike a first switching on, a first switching off uses the first show up without checking anything.
    void switchingOffUsesTheFirstShowUp()
    {
        ShownEditor shown(false);
        shown.panel.setPaintRowColSequeWidget(&shown.layer);
        press(shown.models().at(2));
        press(shown.sequeCheck());
        press(shown.sequeCheck());
        QVERIFY(shown.models().at(2)->isChecked());
    }

    void controls_data()
    {
        QTest::addColumn<QByteArray>("control"); // object name, or class and index
        QTest::addColumn<int>("key");            // 0 for a click
        QTest::addColumn<SequenceChange>("change");
        const auto row = [](const char* name, const char* control, int key, const SequenceChange& change) {
            QTest::newRow(name) << QByteArray(control) << key << change;
        };
        using SequenceLayer = PaintRowColSequeWidget;
        row("lines off", "QCheckBox 0", 0, [](SequenceLayer& layer) { layer.setRowColVisible(false); });
        row("lines off by key", "QCheckBox 0", Qt::Key_Space,
            [](SequenceLayer& layer) { layer.setRowColVisible(false); });
        row("labels off", "QCheckBox 1", 0, [](SequenceLayer& layer) { layer.setSequeVisible(false); });
        row("letters", "QRadioButton 0", 0, [](SequenceLayer&) {});
        row("numbers", "QRadioButton 1", 0, [](SequenceLayer& layer) { layer.setShowModel(1); });
        row("letter and number", "QRadioButton 2", 0, [](SequenceLayer& layer) { layer.setShowModel(2); });
        row("a row more", "_rowSpinBox", Qt::Key_Up, [](SequenceLayer& layer) { layer.setRows(10); });
        row("a row less", "_rowSpinBox", Qt::Key_Down, [](SequenceLayer& layer) { layer.setRows(8); });
        row("a column more", "_colSpinBox", Qt::Key_Up, [](SequenceLayer& layer) { layer.setColumns(17); });
        row("a column less", "_colSpinBox", Qt::Key_Down, [](SequenceLayer& layer) { layer.setColumns(15); });
        row("larger labels", "_sequeSpinBox", Qt::Key_Up,
            [](SequenceLayer& layer) { layer.setSequeSize(16); });
        row("smaller labels", "_sequeSpinBox", Qt::Key_Down,
            [](SequenceLayer& layer) { layer.setSequeSize(14); });
        row("location", "_localComboBox", Qt::Key_Down, [](SequenceLayer& layer) { layer.setLocation(1); });
        row("last location", "_localComboBox", Qt::Key_End,
            [](SequenceLayer& layer) { layer.setLocation(2); });
        row("sorting", "_sortComboBox", Qt::Key_Down, [](SequenceLayer& layer) { layer.setSortType(1); });
        row("last sorting", "_sortComboBox", Qt::Key_End, [](SequenceLayer& layer) { layer.setSortType(3); });
    }

    /// Every control tells the painter at once, and reports once.
    void controls()
    {
        QFETCH(QByteArray, control);
        QFETCH(int, key);
        QFETCH(SequenceChange, change);
        ShownEditor shown;
        QWidget* widget = shown.control(control);
        QVERIFY(widget);
        if (key == 0)
            press(widget);
        else
            QTest::keyClick(widget, Qt::Key(key));
        VD_COMPARE_IMAGES(layerImage(shown.layer), sequenceAfter(change));
        QCOMPARE(shown.signalCount, 1);
    }

    void secondSorting()
    {
        ShownEditor shown;
        QTest::keyClick(shown.sorting(), Qt::Key_Down);
        QTest::keyClick(shown.sorting(), Qt::Key_Down);
        QCOMPARE(shown.signalCount, 2);
        VD_COMPARE_IMAGES(layerImage(shown.layer),
                          sequenceAfter([](PaintRowColSequeWidget& layer) { layer.setSortType(2); }));
        QTest::keyClick(shown.sorting(), Qt::Key_Home);
        VD_COMPARE_IMAGES(layerImage(shown.layer), sequenceAfter([](PaintRowColSequeWidget&) {}));
    }

    void backToLettersByClick()
    {
        ShownEditor shown;
        press(shown.models().at(1));
        press(shown.models().at(0));
        QCOMPARE(shown.signalCount, 2);
        VD_COMPARE_IMAGES(layerImage(shown.layer), sequenceAfter([](PaintRowColSequeWidget&) {}));
    }

    void foreignItems_data()
    {
        QTest::addColumn<QByteArray>("combo");
        QTest::addColumn<QVariant>("data");
        QTest::newRow("location 3") << QByteArray("_localComboBox") << QVariant(3);
        QTest::newRow("location -1") << QByteArray("_localComboBox") << QVariant(-1);
        QTest::newRow("location without data") << QByteArray("_localComboBox") << QVariant();
        QTest::newRow("sorting 4") << QByteArray("_sortComboBox") << QVariant(4);
        QTest::newRow("sorting -1") << QByteArray("_sortComboBox") << QVariant(-1);
        QTest::newRow("sorting with a text") << QByteArray("_sortComboBox") << QVariant(QStringLiteral("x"));
    }

    void foreignItems()
    {
        QFETCH(QByteArray, combo);
        QFETCH(QVariant, data);
        ShownEditor shown;
        QComboBox* list = shown.combo(combo.constData());
        list->addItem(QStringLiteral("foreign"), data);
        QTest::keyClick(list, Qt::Key_Down);
        shown.signalCount = 0;
        const qint64 picture = shown.layer.pixmap(Qt::ReturnByValue).cacheKey();
        QTest::keyClick(list, Qt::Key_End);
        QCOMPARE(list->currentText(), QStringLiteral("foreign"));
        QCOMPARE(shown.signalCount, 1);
        QCOMPARE(shown.layer.pixmap(Qt::ReturnByValue).cacheKey(), picture);
        list->setCurrentIndex(-1);
        QCOMPARE(shown.signalCount, 2);
        QCOMPARE(shown.layer.pixmap(Qt::ReturnByValue).cacheKey(), picture);
    }

    void gridReachesAllPainters()
    {
        ShownEditor shown;
        enter(shown.rows(), 3);
        enter(shown.columns(), 5);
        VD_COMPARE_IMAGES(layerImage(shown.layer), sequenceAfter([](PaintRowColSequeWidget& layer) {
                              layer.setRows(3);
                              layer.setColumns(5);
                          }));
        PaintBasicWidget basic;
        basic.setRows(3);
        basic.setColumns(5);
        VD_COMPARE_IMAGES(layerImage(shown.basic), pictureAt(sequenceChart, basic));
        PaintSelfWidget self;
        self.setSelfTextSize(60); // below the size of outlines, whose pixels depend on what was drawn before
        shown.self.setSelfTextSize(60);
        self.setRows(3);
        self.setColumns(5);
        VD_COMPARE_IMAGES(layerImage(shown.self), pictureAt(sequenceChart, self));
    }

    void painterMayBeOneOfThree_data()
    {
        QTest::addColumn<int>("painter");
        QTest::newRow("none") << 0;
        QTest::newRow("labels") << 1;
        QTest::newRow("base pattern") << 2;
        QTest::newRow("text") << 3;
        QTest::newRow("destroyed ones") << 4;
    }

    /// Every control may be used with any of the painters missing.
    void painterMayBeOneOfThree()
    {
        QFETCH(int, painter);
        ShownEditor shown(false);
        if (painter == 1)
            shown.panel.setPaintRowColSequeWidget(&shown.layer);
        if (painter == 2)
            shown.panel.setPaintBasicWidget(&shown.basic);
        if (painter == 3)
            shown.panel.setPaintSelfWidget(&shown.self);
        if (painter == 4) {
            PaintRowColSequeWidget layer;
            PaintBasicWidget basic;
            PaintSelfWidget self;
            shown.panel.setPaintRowColSequeWidget(&layer);
            shown.panel.setPaintBasicWidget(&basic);
            shown.panel.setPaintSelfWidget(&self);
        }
        const qint64 basic = shown.basic.pixmap(Qt::ReturnByValue).cacheKey();
        const qint64 self = shown.self.pixmap(Qt::ReturnByValue).cacheKey();
        shown.panel.initShow();
        QCOMPARE(shown.signalCount, painter == 1 ? 3 : 0);
        shown.signalCount = 0;
        for (QSpinBox* entry : {shown.rows(), shown.columns(), shown.size()})
            QTest::keyClick(entry, Qt::Key_Down);
        for (QRadioButton* model : shown.models())
            press(model);
        QTest::keyClick(shown.location(), Qt::Key_Down);
        QTest::keyClick(shown.sorting(), Qt::Key_Down);
        QCOMPARE(shown.signalCount, 8);
        for (QPushButton* button : {shown.rowColor(), shown.sequeColor()}) {
            const DialogAnswer answer(Qt::red);
            press(button);
            QVERIFY(answer.seen);
        }
        press(shown.rowColCheck());
        press(shown.sequeCheck());
        QCOMPARE(shown.signalCount, 12);
        QCOMPARE(shown.basic.pixmap(Qt::ReturnByValue).cacheKey() != basic, painter == 2);
        QCOMPARE(shown.self.pixmap(Qt::ReturnByValue).cacheKey() != self, painter == 3);
    }

    void sizeThatDoesNotFit()
    {
        ShownEditor shown;
        const int fitted = expectedLabelSize(500, {50, 51});
        QVERIFY(fitted < 100);
        shown.size()->setValue(500);
        QCOMPARE(shown.size()->value(), fitted);
        QCOMPARE(shown.layer.sequeSize(), fitted);
        QCOMPARE(shown.signalCount, 2); // the second for the value that the entry falls back to
        VD_COMPARE_IMAGES(layerImage(shown.layer), sequenceAfter([&](PaintRowColSequeWidget& layer) {
                              layer.setSequeSize(ushort(fitted));
                          }));
    }

    void typedSizeThatDoesNotFit()
    {
        ShownEditor shown;
        enter(shown.size(), 99);
        QCOMPARE(shown.size()->value(), expectedLabelSize(99, {50, 51}));
        QCOMPARE(shown.layer.sequeSize(), shown.size()->value());
    }

    void largestSizeThatFits()
    {
        ShownEditor shown;
        const int fitted = expectedLabelSize(500, {50, 51});
        shown.size()->setValue(fitted);
        QCOMPARE(shown.size()->value(), fitted);
        QCOMPARE(shown.signalCount, 1);
        QTest::keyClick(shown.size(), Qt::Key_Up);
        QCOMPARE(shown.size()->value(), fitted);
    }

    void smallerCellsLowerTheSize_data()
    {
        QTest::addColumn<bool>("ofRows");
        QTest::addColumn<QSize>("limits");
        QTest::newRow("rows from 9 to 100") << true << QSize(50, 4);
        QTest::newRow("columns from 16 to 100") << false << QSize(8, 51);
    }

    void smallerCellsLowerTheSize()
    {
        QFETCH(bool, ofRows);
        QFETCH(QSize, limits);
        ShownEditor shown;
        QSpinBox* const count = ofRows ? shown.rows() : shown.columns();
        const int usual = count->value();
        const int fitted = expectedLabelSize(15, limits);
        QVERIFY(fitted < 15);
        count->setValue(100);
        QCOMPARE(shown.size()->value(), fitted);
        QCOMPARE(shown.layer.sequeSize(), fitted);
        QCOMPARE(shown.signalCount, 2);

        // The fallen size was also passed on as the requested one: it does not come back by itself.
        count->setValue(usual);
        QCOMPARE(shown.size()->value(), fitted);
        QCOMPARE(shown.layer.sequeSize(), fitted);
        VD_COMPARE_IMAGES(layerImage(shown.layer), sequenceAfter([&](PaintRowColSequeWidget& layer) {
                              layer.setSequeSize(ushort(fitted));
                          }));
        shown.size()->setValue(15);
        QCOMPARE(shown.layer.sequeSize(), 15);
    }

    void sizeIsFittedForLinesAlone()
    {
        ShownEditor shown;
        press(shown.sequeCheck());
        shown.rows()->setValue(100);
        QCOMPARE(shown.size()->value(), expectedLabelSize(15, {50, 4}));
    }

    void valuesAreCutToTheirRanges()
    {
        ShownEditor shown;
        shown.rows()->setValue(1000);
        QCOMPARE(shown.rows()->value(), 100);
        shown.columns()->setValue(0);
        QCOMPARE(shown.columns()->value(), 1);
        shown.size()->setValue(0);
        QCOMPARE(shown.size()->value(), 1);
        VD_COMPARE_IMAGES(layerImage(shown.layer), sequenceAfter([](PaintRowColSequeWidget& layer) {
                              layer.setRows(100);
                              layer.setColumns(1);
                              layer.setSequeSize(1);
                          }));
    }

    void colors_data()
    {
        QTest::addColumn<QByteArray>("button");
        QTest::addColumn<SequenceChange>("change");
        QTest::newRow("lines") << QByteArray("_rowColorButton")
                               << SequenceChange([](PaintRowColSequeWidget& layer) {
                                      layer.setRowColColor(QColor(18, 52, 171));
                                  });
        QTest::newRow("labels") << QByteArray("_sequeColorButton")
                                << SequenceChange([](PaintRowColSequeWidget& layer) {
                                       layer.setSequeColor(QColor(18, 52, 171));
                                   });
    }

    void colors()
    {
        QFETCH(QByteArray, button);
        QFETCH(SequenceChange, change);
        ShownEditor shown;
        const DialogAnswer answer(QColor(18, 52, 171));
        press(shown.color(button.constData()));
        QVERIFY(answer.seen);
        QCOMPARE(answer.title, QStringLiteral("Select Color"));
        QCOMPARE(answer.initialColor, QColor(Qt::white));
        QCOMPARE(answer.owner, &shown.panel);
        QCOMPARE(shown.signalCount, 1);
        for (const char* name : {"_rowColorButton", "_sequeColorButton"})
            QCOMPARE(shown.color(name)->styleSheet(),
                     button == name ? QStringLiteral("QPushButton {background-color: #1234ab;}")
                                    : QStringLiteral("background-color: #000000"));
        VD_COMPARE_IMAGES(layerImage(shown.layer), sequenceAfter(change));
    }

    void cancelledColors_data() { colors_data(); }

    void cancelledColors()
    {
        QFETCH(QByteArray, button);
        ShownEditor shown;
        const qint64 picture = shown.layer.pixmap(Qt::ReturnByValue).cacheKey();
        const DialogAnswer answer((QColor()));
        press(shown.color(button.constData()));
        QVERIFY(answer.seen);
        QCOMPARE(shown.signalCount, 1);
        QCOMPARE(shown.color(button.constData())->styleSheet(), QStringLiteral("background-color: #000000"));
        QCOMPARE(shown.layer.pixmap(Qt::ReturnByValue).cacheKey(), picture);
    }

    void labelsOffGreysTheirControls()
    {
        ShownEditor shown;
        press(shown.sequeCheck());
        QCOMPARE(usableCount(shown.labelControls()), 0);
        QCOMPARE(usableCount(shown.gridControls()), 3);
        VD_COMPARE_IMAGES(layerImage(shown.layer),
                          sequenceAfter([](PaintRowColSequeWidget& layer) { layer.setSequeVisible(false); }));
        press(shown.sequeCheck());
        QCOMPARE(usableCount(shown.labelControls()), 7);
        QCOMPARE(shown.signalCount, 2);
    }

    void linesOffGreyTheirControls()
    {
        ShownEditor shown;
        press(shown.rowColCheck());
        QCOMPARE(usableCount(shown.gridControls()), 0);
        QCOMPARE(usableCount(shown.labelControls()), 7);
        VD_COMPARE_IMAGES(layerImage(shown.layer), sequenceAfter([](PaintRowColSequeWidget& layer) {
                              layer.setRowColVisible(false);
                          }));
        press(shown.rowColCheck());
        QCOMPARE(usableCount(shown.gridControls()), 3);
        QCOMPARE(shown.signalCount, 2);
    }

    void bothOffGreyEverythingButTheSwitches()
    {
        ShownEditor shown;
        press(shown.rowColCheck());
        press(shown.sequeCheck());
        QCOMPARE(usableCount(shown.gridControls() + shown.labelControls()), 0);
        QVERIFY(shown.rowColCheck()->isEnabled());
        QVERIFY(shown.sequeCheck()->isEnabled());
        const QImage image = layerImage(shown.layer);
        QImage transparent(image.size(), image.format());
        transparent.fill(Qt::transparent);
        VD_COMPARE_IMAGES(image, transparent);
    }
};

VD_TEST_MAIN(TestRowColSequeSettingBox)
#include "tst_rowcolsequesettingbox.moc"
