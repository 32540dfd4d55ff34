#include "charttool.h"
#include "language.h"

#include <propertybox.h>

#include <QComboBox>
#include <QLoggingCategory>

using namespace charttool;

namespace {

constexpr auto context = "TestChartTools::Widget";

/// What the tool shows in a language of short texts, so that nothing is elided.
Texts shortTexts()
{
    return {{"Apply", "ap"},
            {"Cancel", "ca"},
            {"Confirm", "co"},
            {"Layer settings", "ls"},
            {"Chess", "ch"},
            {"Color bar", "cb"},
            {"Brightness", "br"},
            {"Resolution", "re"},
            {"Delete", "de"},
            {"Reset", "rs"},
            {"TestImage", "Imagen"},
            {"DeleteColorBar", "dc"},
            {"OK", "ok"},
            {"Cannel", "cn"},
            {"Display content personalization", "dp"},
            {"Show Circle", "sc"},
            {"Letter Mode", "lm"},
            {"Center", "ce"},
            {"Show Logo", "sl"},
            {"Upload your logo", "ul"},
            {"Display custom text", "dt"},
            {"Text Input", "ti"},
            {"SelectColor", "pick"}};
}

QStringList buttonTexts(const User& user)
{
    return {user.saveButton()->text(), user.cancel()->text(), user.addConfirm()->text(),
            user.replaceConfirm()->text(), user.replaceApply()->text()};
}

const QStringList& englishButtons()
{
    static const QStringList texts = {"Apply", "Cancel", "Confirm", "Confirm", "Apply"};
    return texts;
}

const QStringList& shortButtons()
{
    static const QStringList texts = {"ap", "ca", "co", "co", "ap"};
    return texts;
}

QStringList sectionTitles(const User& user)
{
    return {user.named<PropertyBox>("basePropertyBox")->titleText(),
            user.named<PropertyBox>("userSettingPropertyBox")->titleText()};
}

const QStringList& englishTitles()
{
    static const QStringList texts = {"Layer settings", "Display content personalization"};
    return texts;
}

const QStringList& shortTitles()
{
    static const QStringList texts = {"ls", "dp"};
    return texts;
}

/// What the panels look up to show their texts, each in the order of its rows.
QStringList basicSources()
{
    return {"Mode selection", "Chess",          "Color bar",  "Odd", "Even",   "Gradient",
            "Color bar",      "Previous color", "Next color", "Add", "Delete", "Widget"};
}

QStringList publicSources()
{
    return {"Brightness", "Reset", "Resolution", "Box RowColNum", "OutBorder", "BorderWidth", "Color"};
}

QStringList inLineSources()
{
    return {"Show Circle",
            "Circle",
            "BorderWidth",
            "Color",
            "Show Diagonal",
            "BorderWidth",
            "Color",
            "Show Serial Number",
            "Serial Size",
            "Color",
            "Show Model",
            "Letter Mode",
            "Num Mode",
            "Combination Mode",
            "Show Position",
            "Center",
            "Left Up Right Down",
            "Left Down Right Up",
            "Sort by",
            "From up to down increase Frome left to right increase",
            "from up to down increase frome left to right decrease",
            "from down to up increase frome left to right increase",
            "from down to up increase frome left to right decrease",
            "Widget"};
}

QStringList logoSources()
{
    return {"Show Logo",
            "Logo Style",
            "Picture Logo",
            "Text Logo",
            "UpLogo",
            "Upload your logo",
            "SuggestTransparentbackgroundrecommended",
            "Scale Logo",
            "Reset",
            "Text Logo",
            "Text Size",
            "Color",
            "Display Position",
            "Center",
            "Left Up",
            "Left Down",
            "Right Up",
            "Right Down",
            "Position adjustment",
            "X",
            "Y",
            "Opacity",
            "Reset",
            "SelectImage"};
}

QStringList selfSources()
{
    return {"Display custom text", "Text Input", "Text Size",      "Color",     "Show Resolution",
            "Show Size",           "Color",      "ResolutionShow", "BoxNumShow"};
}

/// What the panels look up to tell of their fields, after their captions.
QStringList fieldSources(std::initializer_list<const char*> names)
{
    QStringList sources;
    for (const char* name : names) {
        const QString source = QLatin1String(name);
        sources << source.mid(source.startsWith(QLatin1Char('#')) ? 1 : 0);
        if (source.startsWith(QLatin1Char('#')))
            sources << QStringLiteral("%1: %2 to %3");
    }
    return sources;
}

QStringList basicFields()
{
    return fieldSources({"Color of the odd cabinets", "Color of the even cabinets",
                         "Gradient between the colors", "Colors of the color bar",
                         "Double click or Enter changes a color, Alt+Up and Alt+Down move it"});
}

QStringList publicFields()
{
    return fieldSources({"#Brightness in percent", "#Brightness in percent", "#Chart width in pixels",
                         "#Chart height in pixels", "#Rows of cabinets", "#Columns of cabinets",
                         "Show the border", "#Width of the border", "Color of the border"});
}

QStringList inLineFields()
{
    return fieldSources({"Show the circles", "#Radius of the circles", "#Line width of the circles",
                         "Color of the circles", "Show the diagonals", "#Line width of the diagonals",
                         "Color of the diagonals", "Show the labels", "#Size of the labels",
                         "Color of the labels", "Position of the labels", "Order of the labels"});
}

QStringList logoFields()
{
    return fieldSources({"Show the logo", "#Size of the logo in percent", "#Size of the logo in percent",
                         "Text of the logo", "#Size of the logo text", "Color of the logo text",
                         "Position of the logo", "#Sideways shift of the logo in pixels",
                         "#Vertical shift of the logo in pixels", "#Opacity of the logo in percent",
                         "#Opacity of the logo in percent"});
}

QStringList selfFields()
{
    return fieldSources({"Show the custom text", "Custom text"}) + QStringList{"%1: at most %2 characters"} +
           fieldSources({"#Size of the custom text", "Color of the custom text", "Show the information line",
                         "#Size of the information line", "Color of the information line"});
}

/// The captions of a panel and its fields, before the `last` texts that its painter looks up.
QStringList panelSources(QStringList captions, const QStringList& fields, int last = 0)
{
    const QStringList ofPainter = captions.mid(captions.size() - last);
    captions.erase(captions.end() - last, captions.end());
    return captions + fields + ofPainter;
}

/// The sources of the texts that were looked up in `language` and are lacking there, in order.
QStringList lacking(const QStringList& messages, const QString& language)
{
    const QString start = language + QLatin1String(" lacks ") + QLatin1String(context) + QLatin1Char(' ');
    QStringList sources;
    for (const QString& message : messages) {
        if (message.startsWith(start))
            sources.append(message.mid(start.size()));
    }
    return sources;
}

/// Every text that the widgets of `tool` show, and their tool tips and names.
QStringList shownTexts(const VTestChartTools& tool)
{
    QStringList texts;
    for (const auto* widget : tool.findChildren<QWidget*>()) {
        texts << widget->windowTitle() << widget->toolTip() << widget->accessibleName();
        if (const auto* label = qobject_cast<const QLabel*>(widget))
            texts << label->text();
        if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
            texts << button->text();
        if (const auto* section = qobject_cast<const PropertyBox*>(widget))
            texts << section->titleText();
        const auto* box = qobject_cast<const QComboBox*>(widget);
        for (int row = 0; box && row < box->count(); ++row)
            texts << box->itemText(row);
    }
    for (QString& text : texts)
        text = text.trimmed(); // one caption has spaces behind it
    return texts;
}

/// What a tool with a colour dialog shows at all times.
QStringList shownSources()
{
    QStringList sources = englishButtons() + englishTitles() + basicSources() + publicSources() +
                          inLineSources() + logoSources() + selfSources();
    sources << "Basiccolors"
            << "Hue"
            << "Sat"
            << "Val"
            << "Red"
            << "Green"
            << "Blue"
            << "Customcolors"
            << "PickScreenColor"
            << "AddtoCustomColors"
            << "OK"
            << "Cannel"
            << "SelectColor";
    for (const char* elsewhere : {"SelectImage", "ResolutionShow", "BoxNumShow"}) // a dialog, the chart
        sources.removeAll(elsewhere);
    return sources;
}

} // namespace

class TestLanguageSwitching : public TestCase
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    /// Writes a language file and returns its path.
    QString write(const QString& name, const QString& language, const Texts& texts)
    {
        const QString path = m_folder.filePath(name);
        return writeFile(path, languageFile(language, texts)) ? path : QString();
    }

    /// The name of the next added chart.
    QString addedName(VTestChartTools& tool)
    {
        Host host(tool);
        tool.setSavePath(m_folder.filePath(QStringLiteral("charts")), QString());
        tool.setTestImageNum(7);
        tool.slotAddConfirmButtonClicked();
        return host.hears(2) ? QFileInfo(host.last().path).fileName() : QString();
    }

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        log().allowWarning(QStringLiteral("^This plugin does not support"));
    }

    void cleanup()
    {
        TranslateManager1::instance().translator().switchLanguage(QString());
        QLoggingCategory::setFilterRules(QString());
        TestCase::cleanup();
    }

    void withoutFilesTextsStayEnglish_data()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("a language without a file") << "tlh";
        QTest::newRow("none") << "";
    }

    void withoutFilesTextsStayEnglish()
    {
        QFETCH(QString, language);
        QWidget window;
        QWidget page(&window); // with both, the tool has its colour dialog
        VTestChartTools tool(&page);
        tool.setTestChartToolsData(smallRecord());
        tool.translateLanguage(); // the first time titles the colour dialog
        const QStringList expected = shownTexts(tool);
        tool.switchLanguage(language);
        const QStringList texts = shownTexts(tool);
        QCOMPARE(texts, expected);
        const QStringList sources = shownSources();
        for (const QString& source : sources)
            QVERIFY2(texts.contains(source), qPrintable(source));
        QCOMPARE(addedName(tool), QStringLiteral("TestImage7.png"));
    }

    void switchingSetsEveryText()
    {
        VTestChartTools tool;
        const User user(tool);
        tool.loadLanguageFiles({write(QStringLiteral("short.ts"), QStringLiteral("es"), shortTexts())});
        QCOMPARE(buttonTexts(user), englishButtons());

        const QSignalSpy changed(&TranslateManager1::instance(), &TranslateManager1::languageChanged);
        tool.switchLanguage(QStringLiteral("es"));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(TranslateManager1::instance().translator().language(), QStringLiteral("es"));
        QCOMPARE(buttonTexts(user), shortButtons());
        QCOMPARE(sectionTitles(user), shortTitles());
        QCOMPARE(user.chess()->text(), QStringLiteral("ch"));
        QCOMPARE(user.colorBar()->text(), QStringLiteral("cb"));
        QVERIFY(user.captionLabel(QStringLiteral("br")));
        QVERIFY(user.captionLabel(QStringLiteral("re")));
        for (const char* caption : {"sc", "sl", "dt", "ti"})
            QVERIFY2(user.captionLabel(QLatin1String(caption)), caption);
        QCOMPARE(user.inLinePanel()->findChild<QRadioButton*>()->text(), QStringLiteral("lm"));
        QCOMPARE(user.inLinePanel()->findChild<QComboBox*>()->itemText(0), QStringLiteral("ce"));
        QCOMPARE(user.logoPanel()->findChild<QComboBox*>()->itemText(0), QStringLiteral("ce"));
        QCOMPARE(user.logoPanel()->findChild<QPushButton*>(QStringLiteral("CancleButton"))->text(),
                 QStringLiteral("ul"));
        QCOMPARE(user.named<QPushButton>("BrightResetBtn")->toolTip(), QStringLiteral("rs"));
        QCOMPARE(user.basicPanel()->findChild<QPushButton*>(QStringLiteral("CancleButton"))->text(),
                 QStringLiteral("de"));

        tool.switchLanguage(QString());
        QCOMPARE(buttonTexts(user), englishButtons());
        QCOMPARE(sectionTitles(user), englishTitles());
        QCOMPARE(user.chess()->text(), QStringLiteral("Chess"));
        QVERIFY(user.captionLabel(QStringLiteral("Brightness")));
    }

    void textsAreSetInOrder_data()
    {
        QTest::addColumn<bool>("withColorDialog");
        QTest::newRow("without a colour dialog") << false;
        QTest::newRow("with a colour dialog") << true;
    }

    void textsAreSetInOrder()
    {
        QFETCH(bool, withColorDialog);
        QWidget window;
        QWidget page(&window);
        auto* tool = new VTestChartTools(withColorDialog ? &page : &window);
        tool->loadLanguageFiles({write(QStringLiteral("empty.ts"), QStringLiteral("la"), {})});
        QLoggingCategory::setFilterRules(QStringLiteral("vardeno.translate.debug=true"));
        log().clear();
        tool->switchLanguage(QStringLiteral("la"));
        const QStringList order = lacking(log().messages(), QStringLiteral("la"));
        const QStringList expected = englishButtons() + panelSources(basicSources(), basicFields()) +
                                     panelSources(publicSources(), publicFields()) +
                                     panelSources(inLineSources(), inLineFields()) +
                                     panelSources(logoSources(), logoFields(), 1) +
                                     panelSources(selfSources(), selfFields(), 2) + englishTitles();
        QCOMPARE(order.mid(0, expected.size()), expected);
        QCOMPARE(order.value(expected.size()), withColorDialog ? QStringLiteral("SelectColor") : QString());
        QCOMPARE(order.size() > expected.size(), withColorDialog);
    }

    void colorDialogIsTitled()
    {
        QWidget window;
        QWidget page(&window);
        auto* tool = new VTestChartTools(&page);
        const auto titles = [tool] {
            QStringList texts;
            for (const auto* label : tool->findChild<QWidget*>("includeDialog")->findChildren<QLabel*>())
                texts.append(label->text());
            return texts;
        };
        tool->loadLanguageFiles({write(QStringLiteral("short.ts"), QStringLiteral("cs"), shortTexts())});
        tool->switchLanguage(QStringLiteral("cs"));
        QVERIFY(titles().contains("pick"));
        tool->switchLanguage(QString());
        QVERIFY(titles().contains("SelectColor"));
        QVERIFY(!titles().contains("pick"));
    }

    void informationLineFollowsTheLanguage()
    {
        VTestChartTools tool;
        const User user(tool);
        TestChartToolsData record = smallRecord();
        record.selfData.showResolution = true;
        tool.setTestChartToolsData(record);
        const QImage captionless = layerImage(*user.painter<PaintSelfWidget>());
        tool.loadLanguageFiles({write(QStringLiteral("line.ts"), QStringLiteral("hu"),
                                      {{"ResolutionShow", "Felbontas"}, {"BoxNumShow", "Szekrenyek"}})});
        tool.switchLanguage(QStringLiteral("hu"));
        PaintSelfWidget expected;
        expected.resize(160, 90);
        expected.setSelfTextVisible(false);
        expected.setResolutionColor(toQColor(record.selfData.resolutionTextColor));
        expected.retranslate();
        VD_COMPARE_IMAGES(layerImage(*user.painter<PaintSelfWidget>()), layerImage(expected));
        QVERIFY(layerImage(*user.painter<PaintSelfWidget>()) != captionless);
    }

    void translateLanguageSetsTheSameTexts()
    {
        VTestChartTools tool;
        tool.loadLanguageFiles({write(QStringLiteral("empty.ts"), QStringLiteral("la"), {})});
        QLoggingCategory::setFilterRules(QStringLiteral("vardeno.translate.debug=true"));
        log().clear();
        tool.switchLanguage(QStringLiteral("la"));
        const QStringList switched = lacking(log().messages(), QStringLiteral("la"));
        log().clear();
        tool.translateLanguage();
        QVERIFY(!switched.isEmpty());
        QCOMPARE(lacking(log().messages(), QStringLiteral("la")), switched);
    }

    void managerAloneRetranslatesNothing()
    {
        VTestChartTools tool;
        const User user(tool);
        tool.setTestChartToolsData(smallRecord());
        tool.loadLanguageFiles({write(QStringLiteral("short.ts"), QStringLiteral("pt"), shortTexts())});
        const QStringList before = shownTexts(tool);
        const QImage chart = layerImage(*user.painter<PaintSelfWidget>());
        const QSignalSpy changed(&TranslateManager1::instance(), &TranslateManager1::languageChanged);
        TranslateManager1::instance().switchLanguage(QStringLiteral("pt"));
        QCOMPARE(changed.count(), 1);
        QCoreApplication::processEvents();
        QCOMPARE(shownTexts(tool), before);
        VD_COMPARE_IMAGES(layerImage(*user.painter<PaintSelfWidget>()), chart);

        tool.translateLanguage();
        QCOMPARE(changed.count(), 1);
        QCOMPARE(buttonTexts(user), shortButtons());
        QCOMPARE(sectionTitles(user), shortTitles());
        QCOMPARE(user.chess()->text(), QStringLiteral("ch"));
    }

    /// A host that is told of the new language asks for its own texts, and the tool still shows the old ones.
    void hostIsToldBeforeTheToolRetranslates()
    {
        VTestChartTools tool;
        const User user(tool);
        tool.loadLanguageFiles({write(QStringLiteral("short.ts"), QStringLiteral("lv"), shortTexts())});
        QStringList seen;
        connect(&TranslateManager1::instance(), &TranslateManager1::languageChanged, &tool, [&] {
            seen << TranslateManager1::instance().translator().language() << user.chess()->text();
        });
        tool.switchLanguage(QStringLiteral("lv"));
        QCOMPARE(seen, QStringList({"lv", "Chess"}));
        QCOMPARE(user.chess()->text(), QStringLiteral("ch"));
    }

    void fileNameFollowsTheLanguage_data()
    {
        QTest::addColumn<QString>("translation");
        QTest::addColumn<QString>("name");
        QTest::newRow("Latin letters") << "Testbild"
                                       << "Testbild7.png";
        QTest::newRow("Chinese") << "测试图"
                                 << "测试图7.png";
        QTest::newRow("with a space") << "Test chart "
                                      << "Test chart 7.png";
    }

    void fileNameFollowsTheLanguage()
    {
        QFETCH(QString, translation);
        QFETCH(QString, name);
        VTestChartTools tool;
        tool.setTestChartToolsData(smallRecord());
        QCOMPARE(addedName(tool), QStringLiteral("TestImage7.png"));
        tool.loadLanguageFiles(
            {write(QStringLiteral("name.ts"), QStringLiteral("de"), {{"TestImage", translation}})});
        QCOMPARE(addedName(tool), QStringLiteral("TestImage7.png"));
        tool.switchLanguage(QStringLiteral("de"));
        QCOMPARE(addedName(tool), name);
        tool.switchLanguage(QString());
        QCOMPARE(addedName(tool), QStringLiteral("TestImage7.png"));
    }

    void fileNameIsLookedUpWhenItIsSaved()
    {
        VTestChartTools tool;
        tool.setTestChartToolsData(smallRecord());
        tool.loadLanguageFiles(
            {write(QStringLiteral("name.ts"), QStringLiteral("it"), {{"TestImage", "Immagine"}})});
        TranslateManager1::instance().switchLanguage(QStringLiteral("it"));
        QCOMPARE(addedName(tool), QStringLiteral("Immagine7.png"));
    }

    void filesLoadInOrder()
    {
        VTestChartTools tool;
        const User user(tool);
        const QString broken = m_folder.filePath(QStringLiteral("broken.ts"));
        QVERIFY(writeFile(broken, languageFile(QStringLiteral("fr"), {{"Cancel", "no"}}).chopped(10)));
        log().allowWarning(QStringLiteral("missing.ts is not read: No such file"));
        log().allowWarning(QStringLiteral("broken.ts is not read: line 1: "));
        tool.loadLanguageFiles({
            write(QStringLiteral("first.ts"), QStringLiteral("fr"), {{"Cancel", "a"}, {"Confirm", "b"}}),
            m_folder.filePath(QStringLiteral("missing.ts")),
            broken,
            write(QStringLiteral("last.ts"), QStringLiteral("fr"), {{"Cancel", "c"}}),
        });
        tool.switchLanguage(QStringLiteral("fr"));
        QCOMPARE(buttonTexts(user), QStringList({"Apply", "c", "b", "b", "Apply"}));
    }

    void noFilesAtAll()
    {
        VTestChartTools tool;
        tool.loadLanguageFiles({});
        tool.switchLanguage(QStringLiteral("xx"));
        QCOMPARE(buttonTexts(User(tool)), englishButtons());
    }

    void newToolSpeaksTheCurrentLanguage()
    {
        VTestChartTools first;
        first.loadLanguageFiles({write(QStringLiteral("short.ts"), QStringLiteral("nl"), shortTexts())});
        first.switchLanguage(QStringLiteral("nl"));
        VTestChartTools second;
        const User user(second);
        QCOMPARE(buttonTexts(user), shortButtons());
        QCOMPARE(sectionTitles(user), shortTitles());
        QCOMPARE(user.chess()->text(), QStringLiteral("ch"));
    }

    void toolsRetranslateThemselvesOnly()
    {
        VTestChartTools first;
        VTestChartTools second;
        first.loadLanguageFiles({write(QStringLiteral("short.ts"), QStringLiteral("sv"), shortTexts())});
        first.switchLanguage(QStringLiteral("sv"));
        QCOMPARE(buttonTexts(User(first)), shortButtons());
        QCOMPARE(buttonTexts(User(second)), englishButtons());
    }

    void longTextsAreElided()
    {
        VTestChartTools tool;
        User user(tool);
        const QString text = QStringLiteral("Discard every change");
        tool.loadLanguageFiles({write(QStringLiteral("long.ts"), QStringLiteral("fi"), {{"Cancel", text}})});
        QVERIFY(user.show());
        tool.switchLanguage(QStringLiteral("fi"));
        QVERIFY(user.cancel()->text().endsWith(QChar(0x2026)));
        QVERIFY(user.cancel()->fontMetrics().horizontalAdvance(user.cancel()->text()) <=
                user.cancel()->width());
        QCOMPARE(user.cancel()->toolTip(), text);
        tool.switchLanguage(QString());
        QCOMPARE(user.cancel()->text(), QStringLiteral("Cancel"));
        QVERIFY(user.cancel()->toolTip().isEmpty());
    }

    void switchingKeepsTheChart()
    {
        VTestChartTools tool;
        User user(tool);
        tool.setTestChartToolsData(smallRecord());
        QVERIFY(user.show());
        tool.updateShowSaveBtnStatus(false);
        tool.loadLanguageFiles({write(QStringLiteral("short.ts"), QStringLiteral("da"), shortTexts())});
        tool.switchLanguage(QStringLiteral("da"));
        QCOMPARE(tool.getTestChartToolsData(), smallRecord());
        QVERIFY(!user.replaceApply()->isEnabled());
        QVERIFY(!user.mask()->isVisible());
    }
};

VD_TEST_MAIN(TestLanguageSwitching)
#include "tst_languageswitching.moc"
