#include "customcolordialog.h"
#include "language.h"
#include "propertybox.h"
#include "selfsettingbox.h"
#include "settingpanel.h"
#include "testcase.h"
#include "titlewidget.h"
#include "vtestcharttools.h"

#include <QColorDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QSignalSpy>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>

using namespace vardeno::testcharttools;

namespace {

const QColor picked(0x33, 0x66, 0x99);
const QColor pickedNext(0x99, 0x33, 0x66);

/// A colour that the editor lets a person pick.
struct Role
{
    const char* name;     ///< as the picker carries it
    const char* button;   ///< object name
    const char* property; ///< "btnProperty" of the button, null for none
    RgbaColor (*color)(const TestChartToolsData& record);
};

RgbaColor lastStripeColor(const TestChartToolsData& record)
{
    const auto& colors = record.basicData.colorStripeColors;
    return colors.empty() ? RgbaColor() : toRgbaColor(colors.rbegin()->second);
}

using Record = const TestChartToolsData&;

const Role roles[] = {
    {"outlineWidth", "outLineColorButton", "outLineColorButton",
     [](Record r) { return r.publicData.outBorderColor; }},
    {"circle", "circleColorButton", nullptr, [](Record r) { return r.inLineData.circleColor; }},
    {"diagonal", "diagonalColorButton", "diagonal", [](Record r) { return r.inLineData.diagonalColor; }},
    {"seque", "sequeColorBtn", "seque", [](Record r) { return r.inLineData.serialColor; }},
    {"logo", "textColorBtn", "logo", [](Record r) { return r.logoData.textColor; }},
    {"selfText", "selfTextColorButton", "selfText", [](Record r) { return r.selfData.selfTextColor; }},
    {"resolution", "resolutionColorButton", "resolution",
     [](Record r) { return r.selfData.resolutionTextColor; }},
    {"odd", "oddColorPushButton", "odd", [](Record r) { return r.basicData.oddColor; }},
    {"even", "evenColorPushButton", "even", [](Record r) { return r.basicData.evenColor; }},
    {"add", "ADDButton", "add", lastStripeColor},
};

const Role& roleNamed(const QString& name)
{
    return *std::find_if(std::begin(roles), std::end(roles),
                         [&](const Role& role) { return name == QLatin1String(role.name); });
}

/// A small chart whose nine colours all differ.
TestChartToolsData colorfulRecord()
{
    TestChartToolsData record;
    record.publicData.resolutionWidth = 480;
    record.publicData.resolutionHeight = 320;
    record.publicData.boxRow = 2;
    record.publicData.boxCol = 3;
    record.publicData.outBorderColor = {210, 20, 30, 255};
    record.inLineData.circleSize = 200;
    record.inLineData.circleColor = {20, 210, 40, 255};
    record.inLineData.diagonalColor = {30, 40, 210, 255};
    record.inLineData.serialColor = {210, 200, 10, 255};
    record.logoData.pictureLogo = false;
    record.logoData.textLogo = true;
    record.logoData.textColor = {10, 200, 210, 255};
    record.selfData.selfTextColor = {200, 10, 210, 255};
    record.selfData.resolutionTextColor = {100, 90, 80, 255};
    record.basicData.oddColor = {60, 70, 80, 255};
    record.basicData.evenColor = {160, 170, 150, 255};
    return record;
}

/// The entry of the picker that a label such as "Red" belongs to.
template <typename Entry>
Entry* pickerEntry(const QWidget* picker, const char* name)
{
    const auto labels = picker->findChildren<QLabel*>();
    for (const QLabel* label : labels) {
        if (label->property("name") == QLatin1String(name))
            return qobject_cast<Entry*>(label->buddy());
    }
    return nullptr;
}

/// The editor within a page of a host's window that is shown and active, its first repaint done.
struct RoutingHost
{
    QWidget window;
    QWidget* page = new QWidget(&window);
    VTestChartTools* tool = new VTestChartTools(page);

    explicit RoutingHost(const TestChartToolsData& record = colorfulRecord())
    {
        for (QWidget* outer : {&window, page}) {
            auto* column = new QVBoxLayout(outer);
            column->setContentsMargins(0, 0, 0, 0);
            column->addWidget(outer == page ? static_cast<QWidget*>(tool) : page);
        }
        tool->setTestChartToolsData(record);
        window.move(60, 50);
        window.show();
        window.activateWindow();
        const bool ready = QTest::qWaitForWindowActive(&window) && idle();
        Q_ASSERT(ready);
        Q_UNUSED(ready)
    }

    /// Waits until no control is locked and nothing more is coming.
    bool idle()
    {
        QTest::qWait(120);
        return QTest::qWaitFor([this] { return mask()->isHidden(); });
    }

    QWidget* mask() { return tool->findChild<QWidget*>(QStringLiteral("maskWidget")); }
    CustomColorDialog* picker() { return tool->findChild<CustomColorDialog*>(); }
    QString served() { return picker()->property("customColorDialog").toString(); }
    QLineEdit* html() { return pickerEntry<QLineEdit>(picker(), "HTML"); }
    QSpinBox* red() { return pickerEntry<QSpinBox>(picker(), "Red"); }
    RgbaColor color(const Role& role) { return role.color(tool->getTestChartToolsData()); }

    QPushButton* button(const Role& role)
    {
        const auto buttons = tool->findChildren<QPushButton*>(QLatin1String(role.button));
        for (QPushButton* each : buttons) {
            if (each->property("btnProperty").toString() == QLatin1String(role.property))
                return each;
        }
        return nullptr;
    }

    /// Clicks what lies on top at the middle of `button`; false if that is another widget.
    bool click(QAbstractButton* button)
    {
        const auto sections = tool->findChildren<PropertyBox*>();
        for (PropertyBox* section : sections)
            section->setExpanded(true);
        QCoreApplication::processEvents();
        tool->findChild<QScrollArea*>(QStringLiteral("ScrollArea"))->ensureWidgetVisible(button);
        QCoreApplication::processEvents();
        const QPoint place = button->mapTo(&window, button->rect().center());
        if (window.childAt(place) != button)
            return false;
        QTest::mouseClick(button, Qt::LeftButton);
        return true;
    }

    /// Makes the page with the button visible and clicks the button.
    bool open(const Role& role)
    {
        const bool add = qstrcmp(role.name, "add") == 0;
        const auto radios = tool->findChildren<QRadioButton*>();
        for (QRadioButton* radio : radios) {
            if (add && radio->objectName() == QLatin1String("colorStripeRadioButton") &&
                !radio->isChecked() && !(click(radio) && idle()))
                return false;
        }
        return click(button(role));
    }

    /// As a person types into the picker: three digits, so that one key makes the one change.
    void typeColor(const QColor& color)
    {
        html()->setFocus();
        html()->selectAll();
        const QString name = color.name(); // "#336699"
        QTest::keyClicks(html(), QString(name.at(0)) + name.at(1) + name.at(3) + name.at(5));
    }

    void accept() { QTest::keyClick(html(), Qt::Key_Return); }
    void reject() { QTest::keyClick(html(), Qt::Key_Escape); }

    QList<QPushButton*> saveButtons()
    {
        return tool->findChild<QWidget*>(QStringLiteral("saveWidget"))
            ->findChildren<QPushButton*>(QStringLiteral("ADDButton"));
    }

    /// How many of the buttons that `updateShowSaveBtnStatus` rules are enabled.
    int litSaveButtons()
    {
        int lit = tool->findChild<QPushButton*>(QStringLiteral("saveButton"))->isEnabled() ? 1 : 0;
        for (const QPushButton* each : saveButtons())
            lit += each->isEnabled() ? 1 : 0;
        return lit;
    }

    /// How many pixels of the preview show `color`. Nearly: full opacity of the text logo is an alpha of 254.
    int previewPixels(const QColor& color)
    {
        const QImage image = tool->findChild<QLabel*>(QStringLiteral("ViewWidget"))
                                 ->pixmap(Qt::ReturnByValue)
                                 .toImage()
                                 .convertToFormat(QImage::Format_RGB32);
        const auto near = [](int a, int b) { return qAbs(a - b) <= 1; };
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QRgb pixel = image.pixel(x, y);
                if (near(qRed(pixel), color.red()) && near(qGreen(pixel), color.green()) &&
                    near(qBlue(pixel), color.blue()))
                    ++count;
            }
        }
        return count;
    }
};

void addRoleRows(bool withAdd)
{
    QTest::addColumn<QString>("name");
    for (const Role& role : roles) {
        if (withAdd || qstrcmp(role.name, "add") != 0)
            QTest::newRow(role.name) << role.name;
    }
}

} // namespace

/// From a click on a colour button, through the one picker, back to the colour that was asked for.
class TestColorRouting : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        log().allowWarning(QStringLiteral("^This plugin does not support raise")); // the offscreen platform's
    }

    void buttonOpensThePicker_data() { addRoleRows(true); }

    void buttonOpensThePicker()
    {
        QFETCH(QString, name);
        const Role& role = roleNamed(name);
        RoutingHost host;
        QVERIFY(!host.picker()->isVisible());
        if (name != QLatin1String("add"))
            QVERIFY(host.color(role) == role.color(colorfulRecord()));
        QVERIFY(host.open(role));
        QVERIFY(host.picker()->isVisible());
        QCOMPARE(host.served(), name);
        const QColor start =
            name == QLatin1String("add") ? QColor(Qt::black) : toQColor(role.color(colorfulRecord()));
        QCOMPARE(host.picker()->currentColor().name(), start.name());
        QCOMPARE(host.html()->text(), start.name());
    }

    void pickerIsAWindowOnTop()
    {
        RoutingHost host;
        QVERIFY(host.open(roleNamed(QStringLiteral("odd"))));
        const Qt::WindowFlags flags = host.picker()->windowFlags();
        QVERIFY(host.picker()->isWindow());
        QVERIFY(flags.testFlag(Qt::Window));
        QVERIFY(flags.testFlag(Qt::WindowStaysOnTopHint));
        QTRY_COMPARE(QApplication::activeWindow(), host.picker());
    }

    void pickerOpensOverTheMiddleOfTheHost()
    {
        RoutingHost host;
        host.tool->setMoveRange(QRect(0, 0, 300, 200)); // its centre is but the first try
        const QPoint middle = host.window.mapToGlobal(host.window.rect().center());
        for (int opened = 1; opened <= 2; ++opened) {
            QVERIFY(host.open(roleNamed(QStringLiteral("odd"))));
            const QPoint off = host.picker()->frameGeometry().center() - middle;
            QVERIFY2(off.manhattanLength() <= 2,
                     qPrintable(QStringLiteral("off by %1, %2 when opened the %3. time")
                                    .arg(off.x())
                                    .arg(off.y())
                                    .arg(opened)));
            host.picker()->move(host.picker()->pos() + QPoint(-130, 70));
            host.reject();
            QVERIFY(host.idle());
        }
    }

    void toolTakenFromItsHostOpensThePickerOnTheAnchor_data()
    {
        QTest::addColumn<bool>("parented");
        QTest::newRow("no parent left") << false;
        QTest::newRow("a parent only") << true;
    }

    void toolTakenFromItsHostOpensThePickerOnTheAnchor()
    {
        QFETCH(bool, parented);
        RoutingHost host;
        QWidget other;
        host.tool->setParent(parented ? &other : nullptr);
        const std::unique_ptr<VTestChartTools> owned(host.tool);
        host.tool->setMoveRange(QRect(200, 100, 900, 700));
        host.tool->slotShowColorDialog(host.button(roleNamed(QStringLiteral("odd"))));
        QVERIFY(host.picker()->isVisible());
        const QPoint off = host.picker()->frameGeometry().center() - QRect(200, 100, 900, 700).center();
        QVERIFY2(off.manhattanLength() <= 2, qPrintable(QStringLiteral("%1, %2").arg(off.x()).arg(off.y())));
    }

    void openPickerStaysWhereItIs()
    {
        RoutingHost host;
        QVERIFY(host.open(roleNamed(QStringLiteral("odd"))));
        host.picker()->move(140, 150);
        QVERIFY(host.click(host.button(roleNamed(QStringLiteral("even")))));
        QCOMPARE(host.picker()->pos(), QPoint(140, 150));
        QCOMPARE(host.served(), QStringLiteral("even"));
        QCOMPARE(host.html()->text(), toQColor(colorfulRecord().basicData.evenColor).name());
        QVERIFY(host.tool->getTestChartToolsData().basicData.oddColor == colorfulRecord().basicData.oddColor);
    }

    void minimisedPickerIsBroughtBack()
    {
        RoutingHost host;
        QVERIFY(host.open(roleNamed(QStringLiteral("odd"))));
        QTest::mouseClick(host.picker()->findChild<QPushButton*>(QStringLiteral("btnMinSize")),
                          Qt::LeftButton);
        QVERIFY(host.picker()->isMinimized());
        QVERIFY(host.click(host.button(roleNamed(QStringLiteral("even")))));
        QVERIFY(host.picker()->isVisible());
        QVERIFY(!host.picker()->isMinimized());
    }

    void openingIsNoChange_data() { addRoleRows(true); }

    void openingIsNoChange()
    {
        QFETCH(QString, name);
        const Role& role = roleNamed(name);
        RoutingHost host;
        if (name == QLatin1String("add")) { // turning to the page is a change of its own
            QVERIFY(host.open(role));
            host.reject();
            QVERIFY(host.idle());
        }
        host.tool->updateShowSaveBtnStatus(false);
        const int lit = host.litSaveButtons();
        const TestChartToolsData before = host.tool->getTestChartToolsData();
        int changes = 0;
        const auto panels = host.tool->findChildren<SettingPanel*>();
        QCOMPARE(panels.size(), 5);
        for (const SettingPanel* panel : panels)
            connect(panel, &SettingPanel::changed, this, [&changes] { ++changes; });

        QVERIFY(host.open(role));
        QVERIFY(host.idle());
        QVERIFY(host.picker()->isVisible());
        QCOMPARE(changes, 0);
        QCOMPARE(host.litSaveButtons(), lit);
        QVERIFY(host.tool->getTestChartToolsData() == before);

        host.typeColor(picked);
        QCOMPARE(changes, name == QLatin1String("add") ? 0 : 1);
        if (name != QLatin1String("add"))
            QVERIFY(host.litSaveButtons() > lit);
    }

    void movedColorIsShownAtOnceAndAcceptedColorStays_data() { addRoleRows(false); }

    void movedColorIsShownAtOnceAndAcceptedColorStays()
    {
        QFETCH(QString, name);
        const Role& role = roleNamed(name);
        RoutingHost host;
        QVERIFY(host.open(role));
        host.typeColor(picked);
        QVERIFY(host.picker()->isVisible());
        QVERIFY(host.color(role) == toRgbaColor(picked));
        QVERIFY(host.idle());
        // The chart itself shows it, in the place of the old one and of no other.
        QVERIFY(host.previewPixels(picked) > 0);
        for (const Role& each : roles) {
            if (qstrcmp(each.name, "add") == 0)
                continue;
            const bool shown = host.previewPixels(toQColor(each.color(colorfulRecord()))) > 0;
            QVERIFY2(shown == (name != QLatin1String(each.name)), each.name);
        }

        host.typeColor(pickedNext);
        QVERIFY(host.color(role) == toRgbaColor(pickedNext));
        QVERIFY(host.idle());
        QCOMPARE(host.previewPixels(picked), 0);
        QVERIFY(host.previewPixels(pickedNext) > 0);

        host.accept();
        QVERIFY(!host.picker()->isVisible());
        QVERIFY(host.idle());

        const TestChartToolsData after = host.tool->getTestChartToolsData();
        for (const Role& each : roles) {
            const bool own = name == QLatin1String(each.name);
            if (qstrcmp(each.name, "add") != 0)
                QVERIFY2(each.color(after) == (own ? toRgbaColor(pickedNext) : each.color(colorfulRecord())),
                         each.name);
        }
        QVERIFY(host.previewPixels(pickedNext) > 0);
        QVERIFY(after.basicData.colorStripeColors == colorfulRecord().basicData.colorStripeColors);
    }

    void rejectedColorIsTakenBack_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("repainting");
        for (const Role& role : roles) {
            if (qstrcmp(role.name, "add") == 0)
                continue;
            QTest::newRow(role.name) << role.name << false;
            QTest::newRow(qPrintable(QLatin1String(role.name) + QStringLiteral(", while repainting")))
                << role.name << true;
        }
    }

    void rejectedColorIsTakenBack()
    {
        QFETCH(QString, name);
        QFETCH(bool, repainting);
        const Role& role = roleNamed(name);
        RoutingHost host;
        const TestChartToolsData before = host.tool->getTestChartToolsData();
        QVERIFY(host.open(role));
        host.typeColor(picked);
        QVERIFY(host.color(role) == toRgbaColor(picked));
        if (!repainting)
            QVERIFY(host.idle());
        host.reject();
        QVERIFY(!host.picker()->isVisible());
        QVERIFY(host.tool->getTestChartToolsData() == before);
        QVERIFY(host.idle());
        QCOMPARE(host.previewPixels(picked), 0);
    }

    void translucentColorIsTakenBackWhole()
    {
        TestChartToolsData record = colorfulRecord();
        record.basicData.oddColor = {200, 100, 50, 77};
        RoutingHost host(record);
        const Role& odd = roleNamed(QStringLiteral("odd"));
        QVERIFY(host.open(odd));
        host.typeColor(picked);
        QVERIFY(host.idle());
        host.reject();
        QVERIFY(host.color(odd) == record.basicData.oddColor);
    }

    void eachPickStartsAnew()
    {
        RoutingHost host;
        const Role& circle = roleNamed(QStringLiteral("circle"));
        QVERIFY(host.open(circle));
        host.typeColor(picked);
        QVERIFY(host.idle());
        host.accept();
        QVERIFY(host.idle());
        QVERIFY(host.open(circle));
        QCOMPARE(host.html()->text(), picked.name());
        host.typeColor(pickedNext);
        QVERIFY(host.idle());
        host.reject();
        QVERIFY(host.color(circle) == toRgbaColor(picked)); // not the first colour of all
    }

    /// The colour before the picker was opened, not the one that it had got meanwhile.
    void clickOnTheSameButtonKeepsTheColorToGoBackTo()
    {
        RoutingHost host;
        const Role& odd = roleNamed(QStringLiteral("odd"));
        QVERIFY(host.open(odd));
        host.typeColor(picked);
        QVERIFY(host.idle());
        QVERIFY(host.click(host.button(odd)));
        host.reject();
        QVERIFY(host.color(odd) == odd.color(colorfulRecord()));
    }

    /// It stays open for one choice after the other.
    void pickerThatIsLockedOpen()
    {
        RoutingHost host;
        const Role& odd = roleNamed(QStringLiteral("odd"));
        QVERIFY(host.open(odd));
        QTest::mouseClick(host.picker()->findChild<QPushButton*>(QStringLiteral("btnShow")), Qt::LeftButton);
        host.typeColor(pickedNext);
        QVERIFY(host.idle());
        host.reject();
        QVERIFY(host.idle());
        QVERIFY(host.color(odd) == odd.color(colorfulRecord()));
        QCOMPARE(host.html()->text(), toQColor(odd.color(colorfulRecord())).name());

        host.typeColor(pickedNext); // the same again
        QVERIFY(host.idle());
        QVERIFY(host.color(odd) == toRgbaColor(pickedNext));
        host.typeColor(picked);
        QVERIFY(host.idle());
        host.accept();
        QVERIFY(host.idle());
        host.typeColor(pickedNext);
        QVERIFY(host.idle());
        host.reject();
        QVERIFY(host.color(odd) == toRgbaColor(picked)); // not the first color of all
    }

    /// Showing the picker handles events.
    void editorDeletedWhileThePickerOpens()
    {
        RoutingHost host;
        const QPointer<VTestChartTools> tool = host.tool;
        const auto endWithThePicker = [&] {
            if (host.picker()->isVisible())
                delete host.tool;
        };
        QTimer deletion;
        connect(&deletion, &QTimer::timeout, host.tool, endWithThePicker);
        deletion.start(0);
        host.open(roleNamed(QStringLiteral("odd")));
        QVERIFY(!tool);
    }

    void addedColorIsAppendedWhenAccepted_data()
    {
        QTest::addColumn<bool>("accepted");
        QTest::newRow("accepted") << true;
        QTest::newRow("rejected") << false;
    }

    void addedColorIsAppendedWhenAccepted()
    {
        QFETCH(bool, accepted);
        RoutingHost host;
        QVERIFY(host.open(roleNamed(QStringLiteral("add"))));
        QVERIFY(host.idle());
        const TestChartToolsData before = host.tool->getTestChartToolsData();
        host.typeColor(picked);
        QVERIFY(host.idle());
        QVERIFY(host.tool->getTestChartToolsData() == before); // not while the user moves
        if (accepted)
            host.accept();
        else
            host.reject();
        QVERIFY(!host.picker()->isVisible());
        TestChartToolsData expected = before;
        if (accepted) {
            auto& colors = expected.basicData.colorStripeColors;
            colors[int(colors.size())] = picked;
        }
        QVERIFY(host.tool->getTestChartToolsData() == expected);
        QVERIFY(host.idle());
        QCOMPARE(host.previewPixels(picked) > 0, accepted);
    }

    void acceptedColorOfAnotherRoleIsNotAppended()
    {
        RoutingHost host;
        QVERIFY(host.open(roleNamed(QStringLiteral("add"))));
        host.reject();
        QVERIFY(host.idle());
        const auto before = host.tool->getTestChartToolsData().basicData.colorStripeColors;
        QVERIFY(host.open(roleNamed(QStringLiteral("outlineWidth"))));
        host.typeColor(picked);
        QVERIFY(host.idle());
        host.accept();
        QVERIFY(host.tool->getTestChartToolsData().basicData.colorStripeColors == before);
    }

    void colorsAreDroppedDuringARepaint()
    {
        RoutingHost host;
        const Role& odd = roleNamed(QStringLiteral("odd"));
        QVERIFY(host.open(odd));
        host.typeColor(picked); // begins a repaint
        QVERIFY(host.color(odd) == toRgbaColor(picked));
        QTest::keyClick(host.red(), Qt::Key_Up); // before its end
        QCOMPARE(host.html()->text(), QStringLiteral("#346699"));
        QVERIFY(host.color(odd) == toRgbaColor(picked));
        QVERIFY(host.idle());
        QVERIFY(host.color(odd) == toRgbaColor(picked)); // nor does it come later
        QTest::keyClick(host.red(), Qt::Key_Up);
        QVERIFY(host.color(odd) == (RgbaColor{0x35, 0x66, 0x99, 255}));
    }

    void changeElsewhereDropsColorsToo()
    {
        RoutingHost host;
        const Role& odd = roleNamed(QStringLiteral("odd"));
        QVERIFY(host.open(odd));
        host.tool->slotGetHeightWidth(); // a repaint that no colour has begun
        host.typeColor(picked);
        QVERIFY(host.color(odd) == odd.color(colorfulRecord()));
        QVERIFY(host.idle());
        host.typeColor(pickedNext);
        QVERIFY(host.color(odd) == toRgbaColor(pickedNext));
    }

    void repaintLeavesTheFocusInThePicker()
    {
        RoutingHost host;
        QVERIFY(host.open(roleNamed(QStringLiteral("odd"))));
        QTRY_COMPARE(QApplication::activeWindow(), host.picker());
        host.typeColor(picked);
        QVERIFY(host.html()->hasFocus());
        QVERIFY(host.idle());
        QVERIFY(host.html()->hasFocus());
        QCOMPARE(host.html()->text(), QStringLiteral("#369"));
    }

    void withoutAGrandparentButtonsDoNothing_data()
    {
        QTest::addColumn<bool>("parented");
        QTest::newRow("no parent") << false;
        QTest::newRow("a parent only") << true;
    }

    void withoutAGrandparentButtonsDoNothing()
    {
        QFETCH(bool, parented);
        QWidget window;
        auto* tool = new VTestChartTools(parented ? &window : nullptr);
        const QScopedPointer<QWidget> owned(parented ? nullptr : tool);
        tool->setTestChartToolsData(colorfulRecord());
        window.resize(tool->size());
        tool->window()->show();
        QVERIFY(QTest::qWaitForWindowExposed(tool->window()));
        QTest::qWait(250);
        QVERIFY(!tool->findChild<CustomColorDialog*>());
        tool->updateShowSaveBtnStatus(false);
        const TestChartToolsData before = tool->getTestChartToolsData();
        const QPushButton* apply = tool->findChild<QPushButton*>(QStringLiteral("saveButton"));
        for (const Role& role : roles) {
            const auto buttons = tool->findChildren<QPushButton*>(QLatin1String(role.button));
            for (QPushButton* button : buttons) {
                if (button->property("btnProperty").toString() == QLatin1String(role.property))
                    button->click();
            }
        }
        tool->slotColorSelected(picked);
        tool->slotColorDialogRejected();
        tool->slotDialogAccepted(picked);
        tool->setMoveRange(QRect(0, 0, 10, 10));
        tool->slotMainWindowMove(QRect(0, 0, 10, 10), QPoint(1, 1));
        tool->closeColorDialog();
        tool->translateLanguage();
        QVERIFY(tool->getTestChartToolsData() == before);
        QVERIFY(!apply->isEnabled());
        const auto windows = QApplication::topLevelWidgets();
        for (const QWidget* each : windows)
            QVERIFY(!each->isVisible() || each == tool->window());
    }

    void pickerGoesWithTheEditor()
    {
        RoutingHost host;
        QVERIFY(host.open(roleNamed(QStringLiteral("diagonal"))));
        host.tool->hide();
        QVERIFY(!host.picker()->isVisible());
    }

    void buttonlessSignalDoesNothing()
    {
        RoutingHost host;
        auto* panel = host.tool->findChild<SelfSettingBox*>();
        Q_EMIT panel->boxNumSignal();
        QVERIFY(!host.picker()->isVisible());
        QVERIFY(!host.picker()->property("customColorDialog").isValid());

        QVERIFY(host.open(roleNamed(QStringLiteral("diagonal"))));
        const QString shown = host.html()->text();
        Q_EMIT panel->boxNumSignal();
        QCOMPARE(host.served(), QStringLiteral("diagonal"));
        QCOMPARE(host.html()->text(), shown);
    }

    void hidesWithTheTool_data()
    {
        QTest::addColumn<bool>("close");
        QTest::addColumn<bool>("locked");
        QTest::newRow("tool closed") << true << false;
        QTest::newRow("tool closed, picker locked") << true << true;
        QTest::newRow("asked for") << false << false;
        QTest::newRow("asked for, picker locked") << false << true;
    }

    void hidesWithTheTool()
    {
        QFETCH(bool, close);
        QFETCH(bool, locked);
        RoutingHost host;
        QVERIFY(host.open(roleNamed(QStringLiteral("odd"))));
        if (locked)
            QTest::mouseClick(host.picker()->findChild<QPushButton*>(QStringLiteral("btnShow")),
                              Qt::LeftButton);
        QCOMPARE(host.picker()->isLocked(), locked);
        if (close)
            QVERIFY(host.tool->close());
        else
            host.tool->closeColorDialog();
        QVERIFY(!host.picker()->isVisible());
        QCOMPARE(host.tool->isVisible(), !close);
    }

    void closeButtonHidesThePicker()
    {
        RoutingHost host;
        const Role& odd = roleNamed(QStringLiteral("odd"));
        QVERIFY(host.open(odd));
        QTest::mouseClick(host.picker()->findChild<QPushButton*>(QStringLiteral("btnClose")), Qt::LeftButton);
        QVERIFY(!host.picker()->isVisible());
        QVERIFY(host.open(odd));
        QVERIFY(host.picker()->isVisible());
    }

    void titleFollowsTheLanguage()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("xx.ts"));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(languageFile(QStringLiteral("xx"), {{"SelectColor", "Farbe"}, {"Hue", "Ton"}}));
        file.close();

        RoutingHost host;
        const auto* title = host.picker()->findChild<QLabel*>(QStringLiteral("LabelTitle"));
        QCOMPARE(title->text(), QStringLiteral("color select"));
        host.tool->translateLanguage();
        QCOMPARE(title->text(), QStringLiteral("SelectColor")); // without a language the key
        host.tool->loadLanguageFiles({path});
        TranslateManager1::instance().switchLanguage(QStringLiteral("xx"));
        QCOMPARE(title->text(), QStringLiteral("SelectColor")); // not by itself
        host.tool->switchLanguage(QStringLiteral("xx"));
        QCOMPARE(title->text(), QStringLiteral("Farbe"));
        int hues = 0;
        const auto labels = host.picker()->findChildren<QLabel*>();
        for (const QLabel* label : labels)
            hues += label->text() == QLatin1String("Ton") ? 1 : 0;
        QCOMPARE(hues, 1);
        host.tool->switchLanguage(QStringLiteral("en"));
        QCOMPARE(title->text(), QStringLiteral("SelectColor"));
    }

    void pickerStaysInTheMoveRange_data()
    {
        QTest::addColumn<bool>("moved"); // the host has moved, rather than told its place
        QTest::newRow("range set") << false;
        QTest::newRow("host moved") << true;
    }

    void pickerStaysInTheMoveRange()
    {
        QFETCH(bool, moved);
        RoutingHost host;
        QVERIFY(host.open(roleNamed(QStringLiteral("odd"))));
        CustomColorDialog* picker = host.picker();
        picker->move(300, 200);
        const QRect range(100, 80, 900, 800);
        if (moved)
            host.tool->slotMainWindowMove(range, QPoint(-20, 30));
        else
            host.tool->setMoveRange(range);
        QCOMPARE(picker->pos(), moved ? QPoint(280, 230) : QPoint(300, 200));

        auto* title = picker->findChild<TitleWidget*>();
        const auto drag = [&](const QPoint& distance) {
            const QPoint from = title->mapToGlobal(QPoint(60, 16));
            for (const auto& [type, to] :
                 {std::pair(QEvent::MouseButtonPress, from), std::pair(QEvent::MouseMove, from + distance)}) {
                QMouseEvent event(type, title->mapFromGlobal(to), to, Qt::LeftButton, Qt::LeftButton,
                                  Qt::NoModifier);
                QApplication::sendEvent(title, &event);
            }
            QTest::mouseRelease(title, Qt::LeftButton);
        };
        drag(QPoint(900, 900));
        QCOMPARE(picker->x() + picker->frameGeometry().width(), range.right());
        QCOMPARE(picker->y() + picker->frameGeometry().height(), range.bottom());
        const QPoint corner = picker->pos();
        drag(QPoint(-corner.x() + 10, -corner.y() + 20));
        QCOMPARE(picker->pos(), QPoint(10, 20)); // out at the top left
    }

    void hostsMoveHoldsThePickerBack()
    {
        RoutingHost host;
        QVERIFY(host.open(roleNamed(QStringLiteral("odd"))));
        host.picker()->move(900, 500);
        const QRect range(0, 0, 1000, 700);
        host.tool->slotMainWindowMove(range, QPoint(50, 50));
        QCOMPARE(host.picker()->x() + host.picker()->frameGeometry().width(), range.right());
        QCOMPARE(host.picker()->y() + host.picker()->frameGeometry().height(), range.bottom());
    }
};

VD_TEST_MAIN(TestColorRouting)
#include "tst_colorrouting.moc"
