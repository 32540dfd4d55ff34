#include "charttool.h"
#include "language.h"

#include <customdialog.h>
#include <translator.h>

#include <QComboBox>
#include <QLoggingCategory>
#include <QScopeGuard>
#include <QStyleOptionComboBox>

using namespace charttool;

namespace {

const QString folder = sourcePath("translations");
const QString editorContext = QStringLiteral("TestChartTools::Widget");
const QString hostContext = QStringLiteral("ChartDesk::MainWindow");

struct Message
{
    QString context;
    QString source;
    QString translation;
    QString state; ///< "unfinished" and the like, empty when there is nothing to say
};

using Messages = QVector<Message>;

/// A language file as it stands, with everything that a translator would skip.
struct LanguageFile
{
    explicit LanguageFile(const QString& code)
        : path(folder + QLatin1Char('/') + code + QLatin1String(".ts"))
    {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return;
        QXmlStreamReader xml(&file);
        while (!xml.atEnd()) {
            if (xml.readNext() == QXmlStreamReader::StartElement)
                read(xml);
        }
        isWellFormed = !xml.hasError();
    }

    void read(QXmlStreamReader& xml)
    {
        const auto element = xml.name();
        if (element == QLatin1String("TS")) {
            language = xml.attributes().value(QLatin1String("language")).toString();
            sourceLanguage = xml.attributes().value(QLatin1String("sourcelanguage")).toString();
        } else if (element == QLatin1String("name")) {
            m_context = xml.readElementText();
        } else if (element == QLatin1String("message")) {
            messages.append({m_context, {}, {}, {}});
        } else if (element == QLatin1String("source")) {
            messages.last().source = xml.readElementText();
        } else if (element == QLatin1String("translation")) {
            messages.last().state = xml.attributes().value(QLatin1String("type")).toString();
            messages.last().translation = xml.readElementText();
        }
    }

    QStringList sources(const QString& context) const
    {
        QStringList found;
        for (const Message& message : messages) {
            if (message.context == context)
                found.append(message.source);
        }
        return found;
    }

    QString translation(const QString& context, const QString& source) const
    {
        for (const Message& message : messages) {
            if (message.context == context && message.source == source)
                return message.translation;
        }
        return {};
    }

    QString path;
    QString language;
    QString sourceLanguage;
    Messages messages;
    bool isWellFormed = false;

private:
    QString m_context;
};

/// The files of the folder, by code.
QStringList codes()
{
    QStringList found;
    for (const QFileInfo& file : QDir(folder).entryInfoList({QStringLiteral("*.ts")}, QDir::Files))
        found.append(file.completeBaseName());
    return found;
}

/// Calls `check(message, its English translation)` for every message; the first problem that it tells.
template <typename Check>
QString firstProblem(const QString& code, Check check)
{
    const LanguageFile english(QStringLiteral("en"));
    const LanguageFile file(code);
    for (const Message& message : file.messages) {
        const QString problem = check(message, english.translation(message.context, message.source));
        if (!problem.isEmpty())
            return message.source + QLatin1String(" -> ") + message.translation + QLatin1String(": ") +
                   problem;
    }
    return file.messages.isEmpty() ? QStringLiteral("no messages") : QString();
}

QStringList matches(const QString& pattern, const QString& text)
{
    QStringList found;
    auto it = QRegularExpression(pattern).globalMatch(text);
    while (it.hasNext())
        found.append(it.next().captured());
    found.sort();
    return found;
}

/// How a text ends, where that says something: the wide marks of Chinese and Japanese count as the narrow.
QString ending(const QString& text)
{
    QString mark = text.right(1);
    mark.replace(QChar(0xff1a), QLatin1Char(':')).replace(QChar(0xff1f), QLatin1Char('?'));
    return QStringLiteral(":?…").contains(mark) ? mark : QString();
}

/// The texts that the chart desk looks up, some of which only a broken disk or wall would show.
QStringList hostSources()
{
    const QRegularExpression lookUp(QStringLiteral(
        "(?:(?:hostText|hostTitle|text)\\((?:QStringLiteral\\(\"(?:ChartDesk|MainWindow)\"\\),\\s*)*"
        "QStringLiteral(?=\\((?:\\s*\"[^\"]*\")+\\)\\))|hostSource|say)"
        "\\(((?:\\s*\"[^\"]*\")+)\\)"));
    QStringList found;
    QFileInfoList sources = {QFileInfo(sourcePath("vdpatterndesign/support/chartlanguages.cpp"))};
    for (const char* folder :
         {"apps/chartdesk", "apps/chartdesk/home", "apps/chartdesk/library", "apps/chartdesk/output",
          "apps/chartdesk/reading", "apps/chartdesk/walls", "apps/common", "reading"})
        sources += QDir(sourcePath(folder)).entryInfoList({QStringLiteral("*.cpp")}, QDir::Files);
    for (const QFileInfo& info : qAsConst(sources)) {
        QFile file(info.filePath());
        if (!file.open(QIODevice::ReadOnly))
            return {};
        auto it = lookUp.globalMatch(QString::fromUtf8(file.readAll()));
        while (it.hasNext())
            found.append(it.next().captured(1).remove(QRegularExpression(QStringLiteral("\"\\s*\"|\""))));
    }
    return found;
}

QStringList sortedSet(QStringList list)
{
    list.removeDuplicates();
    list.sort();
    return list;
}

/// What a control shows that has no room for it, empty when all is well.
QString cutText(const QAbstractButton& button)
{
    const bool isElided = button.text().endsWith(QChar(0x2026)) && !button.toolTip().isEmpty();
    const int room = button.width() - (qobject_cast<const QRadioButton*>(&button) ? 0 : 2);
    const int needed = qobject_cast<const QRadioButton*>(&button)
                           ? button.sizeHint().width()
                           : button.fontMetrics().horizontalAdvance(button.text());
    return isElided || needed > room ? button.text() : QString();
}

QString cutText(const QLabel& label)
{
    const bool isElided = label.text().endsWith(QChar(0x2026)) && !label.toolTip().isEmpty();
    return isElided || label.fontMetrics().horizontalAdvance(label.text()) > label.width() ? label.text()
                                                                                           : QString();
}

QString cutText(const QComboBox& box)
{
    QStyleOptionComboBox option;
    option.initFrom(&box);
    option.editable = box.isEditable();
    const QRect field =
        box.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box);
    for (int row = 0; row < box.count(); ++row) {
        if (box.fontMetrics().horizontalAdvance(box.itemText(row)) > field.width())
            return box.itemText(row);
    }
    return {};
}

template <typename Control>
QStringList cutTextsOf(const QWidget& widget)
{
    QStringList found;
    for (const auto* control : widget.findChildren<Control*>()) {
        const QString text = cutText(*control);
        if (!text.isEmpty())
            found.append(text);
    }
    return found;
}

QStringList cutTexts(const QWidget& widget)
{
    return cutTextsOf<QLabel>(widget) + cutTextsOf<QAbstractButton>(widget) + cutTextsOf<QComboBox>(widget);
}

} // namespace

/// The language files in `translations`, each held against the English one and the code.
class TestTranslations : public TestCase
{
    Q_OBJECT

private:
    static void addLanguages()
    {
        QTest::addColumn<QString>("code");
        for (const QString& code : codes())
            QTest::newRow(qPrintable(code)) << code;
    }

private Q_SLOTS:
    void cleanup()
    {
        TranslateManager1::instance().switchLanguage(QString());
        QLoggingCategory::setFilterRules(QString());
        TestCase::cleanup();
    }

    void languages()
    {
        const QStringList expected = {"de", "en", "es", "ja", "zh_CN"};
        QCOMPARE(codes(), expected);
        QFile resources(folder + QStringLiteral("/vdchartcore_translations.qrc"));
        QVERIFY(resources.open(QIODevice::ReadOnly));
        QStringList files;
        for (const QString& code : expected)
            files.append(code + QStringLiteral(".ts<"));
        QCOMPARE(matches(QStringLiteral("\\w+\\.ts<"), QString::fromUtf8(resources.readAll())), files);
    }

    void fileIsOfItsLanguage_data() { addLanguages(); }

    void fileIsOfItsLanguage()
    {
        QFETCH(QString, code);
        const LanguageFile file(code);
        QVERIFY(file.isWellFormed);
        QCOMPARE(file.language, code);
        QCOMPARE(file.sourceLanguage, QStringLiteral("en"));
        QVERIFY(QLocale(code).name().startsWith(code));
    }

    void sourcesAreThoseOfEnglish_data() { addLanguages(); }

    void sourcesAreThoseOfEnglish()
    {
        QFETCH(QString, code);
        const LanguageFile english(QStringLiteral("en"));
        const LanguageFile file(code);
        for (const QString& context : {editorContext, hostContext}) {
            QCOMPARE(file.sources(context), english.sources(context));
            QCOMPARE(sortedSet(file.sources(context)).size(), file.sources(context).size());
        }
        QCOMPARE(file.messages.size(), file.sources(editorContext).size() + file.sources(hostContext).size());
    }

    void everythingIsTranslated_data() { addLanguages(); }

    void everythingIsTranslated()
    {
        QFETCH(QString, code);
        const QString problem = firstProblem(code, [](const Message& message, const QString&) {
            if (!message.state.isEmpty())
                return message.state;
            if (message.translation.isEmpty())
                return QStringLiteral("empty");
            return message.translation == message.translation.simplified() ? QString()
                                                                           : QStringLiteral("white space");
        });
        QCOMPARE(problem, QString());
    }

    void translatorGivesEveryText_data() { addLanguages(); }

    void translatorGivesEveryText()
    {
        QFETCH(QString, code);
        vardeno::trans::Translator translator;
        QVERIFY(translator.load(LanguageFile(code).path));
        translator.switchLanguage(code);
        const QString problem = firstProblem(code, [&](const Message& message, const QString&) {
            const QStringList keys = message.context.split(QStringLiteral("::"));
            const QString text = translator.text(keys.first(), keys.last(), message.source);
            return text == message.translation ? QString() : text;
        });
        QCOMPARE(problem, QString());
    }

    void formIsThatOfEnglish_data() { addLanguages(); }

    /// A colon, a question or dots at the end, placeholders and numbers are the code's business.
    void formIsThatOfEnglish()
    {
        QFETCH(QString, code);
        const QString problem = firstProblem(code, [](const Message& message, const QString& english) {
            if (ending(message.translation) != ending(english))
                return QStringLiteral("ends unlike ") + english;
            for (const char* pattern : {"%[0-9Ln]+", "[0-9]+", "&"}) {
                if (matches(QLatin1String(pattern), message.translation) !=
                    matches(QLatin1String(pattern), english))
                    return QLatin1String(pattern) + QStringLiteral(" unlike ") + english;
            }
            return QString();
        });
        QCOMPARE(problem, QString());
    }

    void languageDiffersFromEnglish_data() { addLanguages(); }

    void languageDiffersFromEnglish()
    {
        QFETCH(QString, code);
        int same = 0;
        const QString problem = firstProblem(code, [&](const Message& message, const QString& english) {
            same += message.translation == english ? 1 : 0;
            return QString();
        });
        QCOMPARE(problem, QString());
        const int all = LanguageFile(code).messages.size();
        QVERIFY2(code == QLatin1String("en") ? same == all : same * 6 < all,
                 qPrintable(QStringLiteral("%1 of %2 are the English texts").arg(same).arg(all)));
    }

    void choicesDiffer_data()
    {
        QTest::addColumn<QStringList>("sources");
        QTest::newRow("pattern") << QStringList{"Chess", "Color bar"};
        QTest::newRow("cells") << QStringList{"Odd", "Even"};
        QTest::newRow("colours") << QStringList{"Add", "Delete"};
        QTest::newRow("steps") << QStringList{"Previous color", "Next color"};
        QTest::newRow("labels") << QStringList{"Letter Mode", "Num Mode", "Combination Mode"};
        QTest::newRow("label position") << QStringList{"Center", "Left Up Right Down", "Left Down Right Up"};
        QTest::newRow("order") << QStringList{"From up to down increase Frome left to right increase",
                                              "from up to down increase frome left to right decrease",
                                              "from down to up increase frome left to right increase",
                                              "from down to up increase frome left to right decrease"};
        QTest::newRow("logo") << QStringList{"Picture Logo", "Text Logo"};
        QTest::newRow("logo position")
            << QStringList{"Center", "Left Up", "Left Down", "Right Up", "Right Down"};
        QTest::newRow("switches") << QStringList{
            "OutBorder",          "Show Circle",         "Show Diagonal",  "Show Logo",
            "Show Serial Number", "Display custom text", "Show Resolution"};
        QTest::newRow("save bar") << QStringList{"Apply", "Cancel", "Confirm"};
        QTest::newRow("question") << QStringList{"OK", "Cannel"};
        QTest::newRow("channels") << QStringList{"Hue", "Sat", "Val", "Red", "Green", "Blue"};
    }

    void choicesDiffer()
    {
        QFETCH(QStringList, sources);
        for (const QString& code : codes()) {
            const LanguageFile file(code);
            QStringList texts;
            for (const QString& source : sources)
                texts.append(file.translation(editorContext, source));
            QVERIFY2(!texts.contains(QString()), qPrintable(code + QLatin1String(" lacks one")));
            QVERIFY2(texts.removeDuplicates() == 0, qPrintable(code + QLatin1Char(' ') + texts.join(' ')));
        }
    }

    void fileNameIsOne_data() { addLanguages(); }

    /// A chart's file is this text with a number after it, on any file system.
    void fileNameIsOne()
    {
        QFETCH(QString, code);
        const QString name = LanguageFile(code).translation(editorContext, QStringLiteral("TestImage"));
        QCOMPARE(matches(QStringLiteral("[\\s/\\\\:*?\"<>|.~\\d]"), name), QStringList());
        QVERIFY(!name.isEmpty());
    }

    void hintNamesTheAction_data() { addLanguages(); }

    void hintNamesTheAction()
    {
        QFETCH(QString, code);
        const LanguageFile file(code);
        const QString hint = file.translation(
            hostContext, QStringLiteral("No charts here yet. Press “New chart” to make the first one."));
        const QString action = file.translation(hostContext, QStringLiteral("New chart"));
        QCOMPARE(matches(QStringLiteral("[“„«「]") + action + QStringLiteral("[”“»」]"), hint).size(), 1);
    }

    void editorLooksUpWhatIsThere()
    {
        QWidget window;
        QWidget page(&window); // with both, the tool has its colour dialog
        VTestChartTools tool(&page);
        tool.setZoomablePreview(true); // which has texts of its own
        QTemporaryDir charts;
        QFile empty(charts.filePath(QStringLiteral("la.ts")));
        QVERIFY(empty.open(QIODevice::WriteOnly));
        empty.write(languageFile(QStringLiteral("la"), {}));
        empty.close();
        tool.loadLanguageFiles({empty.fileName()});
        QLoggingCategory::setFilterRules(QStringLiteral("vardeno.translate.debug=true"));

        tool.switchLanguage(QStringLiteral("la"));
        tool.setTestChartToolsData(smallRecord());
        Host host(tool);
        tool.setSavePath(charts.filePath(QStringLiteral("charts")), QString());
        tool.slotAddConfirmButtonClicked();
        QVERIFY(host.hears(2));
        QWidget owner;
        CustomDialog question(&owner);
        question.setAttribute(Qt::WA_DeleteOnClose, false);

        const QString lacks = QStringLiteral("la lacks %1 ").arg(editorContext);
        QStringList sources;
        for (const QString& message : log().messages(lacks))
            sources.append(message.mid(lacks.size()));
        QCOMPARE(sortedSet(sources), sortedSet(LanguageFile(QStringLiteral("en")).sources(editorContext)));
    }

    void hostLooksUpWhatIsThere()
    {
        QCOMPARE(sortedSet(hostSources()),
                 sortedSet(LanguageFile(QStringLiteral("en")).sources(hostContext)));
    }

    void nothingIsCut_data() { addLanguages(); }

    /// In the size that the chart desk's texts have on a desktop of the usual resolution.
    void nothingIsCut()
    {
        QFETCH(QString, code);
        const auto restore = qScopeGuard([before = QApplication::font()] { QApplication::setFont(before); });
        QFont font = QApplication::font();
        font.setPixelSize(13);
        QApplication::setFont(font);
        VTestChartTools tool;
        User user(tool);
        tool.loadLanguageFiles({LanguageFile(code).path});
        QVERIFY(user.show());
        tool.switchLanguage(code);
        QVERIFY(user.settle()); // the rows are laid out anew
        QStringList cut = cutTexts(tool);
        CustomDialog question(&tool);
        question.setAttribute(Qt::WA_DeleteOnClose, false);
        cut += cutTexts(question);
        QCOMPARE(cut.join(QStringLiteral(" | ")), QString());
    }
};

VD_TEST_MAIN(TestTranslations)
#include "tst_translations.moc"
