#include "customcolordialog.h"
#include "language.h"
#include "testcase.h"
#include "titlewidget.h"

#include <QColorDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>

using namespace vardeno::testcharttools;

namespace {

constexpr QRgb slotGrey = 0xff2b2b2e; // (43, 43, 46)

/// The widget of type `Widget` in the dialog whose text key is `name`.
template <typename Widget>
Widget* named(const QWidget& picker, const char* name)
{
    const auto widgets = picker.findChild<QColorDialog*>()->findChildren<Widget*>();
    for (Widget* widget : widgets) {
        if (widget->property("name") == QLatin1String(name))
            return widget;
    }
    return nullptr;
}

/// The entry that a label such as "Red" belongs to.
template <typename Entry>
Entry* entry(const QWidget& picker, const char* name)
{
    const QLabel* label = named<QLabel>(picker, name);
    return label ? qobject_cast<Entry*>(label->buddy()) : nullptr;
}

void type(QLineEdit* lineEdit, const QString& text)
{
    lineEdit->setFocus();
    lineEdit->selectAll();
    QTest::keyClicks(lineEdit, text);
}

struct Text
{
    const char* name;
    const char* source;
};

const Text labelTexts[] = {
    {"Basic", "Basiccolors"}, {"Hue", "Hue"},     {"Sat", "Sat"},   {"Val", "Val"},
    {"Red", "Red"},           {"Green", "Green"}, {"Blue", "Blue"}, {"Custom", "Customcolors"}};
const Text buttonTexts[] = {
    {"Pick", "PickScreenColor"}, {"Add", "AddtoCustomColors"}, {"OK", "OK"}, {"Cancel", "Cannel"}};

} // namespace

/// The colour picker on its own: how its parts are named and labelled, and what it tells.
class TestCustomColorDialog : public TestCase
{
    Q_OBJECT

private:
    /// The picker, floating over a host, and what it has told so far.
    struct Shown
    {
        QWidget host;
        CustomColorDialog picker{&host};
        QStringList told;

        Shown()
        {
            host.resize(800, 600);
            host.show();
            picker.setWindowFlags(picker.windowFlags() | Qt::Window);
            picker.show();
            const bool ready = QTest::qWaitForWindowExposed(&picker);
            Q_ASSERT(ready);
            Q_UNUSED(ready)
            picker.activateWindow();
            QCoreApplication::processEvents();
            record();
        }

        void record()
        {
            const auto note = [this](const char* name) {
                return [this, name](const QColor& color) {
                    told.append(QLatin1String(name) + QLatin1Char(' ') + color.name());
                };
            };
            QObject::connect(&picker, &CustomColorDialog::sigColorSelected, &host, note("selected"));
            QObject::connect(&picker, &CustomColorDialog::sigColorExternallyChanged, &host, note("moved"));
            QObject::connect(&picker, &CustomColorDialog::sigColorAccept, &host, note("accepted"));
            QObject::connect(&picker, &CustomColorDialog::sigColorDialogRejected, &host,
                             [this] { told.append(QStringLiteral("rejected")); });
            QObject::connect(&picker, &CustomColorDialog::sigSendCloseMsg, &host, [this] {
                told.append(picker.isVisible() ? QStringLiteral("told to close") : QStringLiteral("closed"));
            });
        }

        QColorDialog* dialog() { return picker.findChild<QColorDialog*>(); }
        QLineEdit* html() { return entry<QLineEdit>(picker, "HTML"); }
    };

    QTemporaryDir m_dir;

    void loadLanguage(const QString& language)
    {
        const QString path = m_dir.filePath(language + QLatin1String(".ts"));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        Texts texts;
        const auto add = [&](const char* source) {
            texts.insert(QLatin1String(source), language + QLatin1Char(' ') + QLatin1String(source));
        };
        for (const Text& label : labelTexts)
            add(label.source);
        for (const Text& button : buttonTexts)
            add(button.source);
        add("HTML");
        add("Alpha");
        file.write(languageFile(language, texts));
        file.close();
        QVERIFY(TranslateManager1::instance().translator().load(path));
    }

    static void switchLanguage(const QString& language)
    {
        TranslateManager1::instance().switchLanguage(language);
    }

    static void addTextRows()
    {
        QTest::addColumn<bool>("button");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("source");
        for (const Text& label : labelTexts)
            QTest::newRow(label.name) << false << label.name << label.source;
        for (const Text& button : buttonTexts)
            QTest::newRow(button.name) << true << button.name << button.source;
    }

    static QString shownText(const QWidget& picker, bool button, const QString& name)
    {
        if (button) {
            const auto* widget = named<QPushButton>(picker, qPrintable(name));
            return widget ? widget->text() : QString();
        }
        const auto* widget = named<QLabel>(picker, qPrintable(name));
        return widget ? widget->text() : QString();
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        loadLanguage(QStringLiteral("xx"));
        loadLanguage(QStringLiteral("yy"));
    }

    void init()
    {
        TestCase::init();
        log().allowWarning(QStringLiteral("^This plugin does not support raise")); // the offscreen platform's
    }

    void cleanup()
    {
        switchLanguage(QStringLiteral("en"));
        TestCase::cleanup();
    }

    void partsAreNamed()
    {
        QWidget host;
        CustomColorDialog picker(&host);
        QCOMPARE(picker.objectName(), QStringLiteral("includeDialog"));
        QCOMPARE(picker.id(), QStringLiteral("colorDialog"));
        const auto* dialog = qobject_cast<QColorDialog*>(picker.widget());
        QVERIFY(dialog);
        QCOMPARE(dialog->objectName(), QStringLiteral("CustomDialog"));
        QVERIFY(!dialog->isModal());
        QVERIFY(dialog->testOption(QColorDialog::DontUseNativeDialog));

        const auto spinBoxes = dialog->findChildren<QSpinBox*>();
        QVERIFY(spinBoxes.size() >= 6);
        for (const QSpinBox* spinBox : spinBoxes)
            QCOMPARE(spinBox->objectName(), QStringLiteral("spinBox"));
        const auto lineEdits = dialog->findChildren<QLineEdit*>();
        QVERIFY(lineEdits.contains(entry<QLineEdit>(picker, "HTML")));
        for (const QLineEdit* lineEdit : lineEdits)
            QCOMPARE(lineEdit->objectName(), QStringLiteral("HTMLLineEdit"));
    }

    void staysOnTop_data()
    {
        QTest::addColumn<bool>("parented");
        QTest::newRow("with a parent") << true;
        QTest::newRow("without a parent") << false;
    }

    void staysOnTop()
    {
        QFETCH(bool, parented);
        QWidget host;
        const FloatDockWidget base(QStringLiteral("base"), parented ? &host : nullptr);
        QVERIFY(!base.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        const CustomColorDialog picker(parented ? &host : nullptr);
        QCOMPARE(picker.windowFlags(), base.windowFlags() | Qt::WindowStaysOnTopHint);
    }

    void dialogIsOwned()
    {
        QWidget host;
        auto* picker = new CustomColorDialog(&host);
        const QPointer<QColorDialog> dialog = picker->findChild<QColorDialog*>();
        QVERIFY(dialog);
        QCOMPARE(host.findChildren<QColorDialog*>(QString(), Qt::FindDirectChildrenOnly).size(), 0);
        delete picker;
        QVERIFY(!dialog);
    }

    void customColorsStartDarkGreyInEveryDialog()
    {
        for (int i = 0; i < QColorDialog::customCount(); ++i)
            QColorDialog::setCustomColor(i, QColor(10 * i, 200, 3));
        const CustomColorDialog first;
        QCOMPARE(QColorDialog::customCount(), 16);
        for (int i = 0; i < 16; ++i)
            QCOMPARE(QColorDialog::customColor(i).rgba(), slotGrey);
        QColorDialog::setCustomColor(15, Qt::red);
        const CustomColorDialog second;
        QCOMPARE(QColorDialog::customColor(15).rgba(), slotGrey);
    }

    void signalsAndSlotsAreThere_data()
    {
        QTest::addColumn<QByteArray>("signature");
        for (const char* signature :
             {"sigColorSelected(QColor)", "sigColorExternallyChanged(QColor)", "sigColorDialogRejected()",
              "sigColorAccept(QColor)", "slotColorSelected(QColor)", "slotColorExternallyChanged(QColor)",
              "slotColorDialogRejected()", "slotDialogAccepted()"})
            QTest::newRow(signature) << QByteArray(signature);
    }

    void signalsAndSlotsAreThere()
    {
        QFETCH(QByteArray, signature);
        const QMetaObject& meta = CustomColorDialog::staticMetaObject;
        const int index = meta.indexOfMethod(signature);
        QVERIFY(index >= meta.methodOffset());
        QCOMPARE(meta.method(index).methodType(),
                 signature.startsWith("sig") ? QMetaMethod::Signal : QMetaMethod::Slot);
    }

    /// The key is the first word of the standard text, which is put back to see it.
    void textsAreTagged_data()
    {
        QTest::addColumn<QString>("standard");
        QTest::addColumn<QString>("key");
        QTest::newRow("basic") << "&Basic colors"
                               << "Basic";
        QTest::newRow("custom") << "&Custom colors"
                                << "Custom";
        QTest::newRow("hue") << "Hu&e:"
                             << "Hue";
        QTest::newRow("saturation") << "&Sat:"
                                    << "Sat";
        QTest::newRow("value") << "&Val:"
                               << "Val";
        QTest::newRow("red") << "&Red:"
                             << "Red";
        QTest::newRow("green") << "&Green:"
                               << "Green";
        QTest::newRow("blue") << "Bl&ue:"
                              << "Blue";
        QTest::newRow("alpha") << "A&lpha channel:"
                               << "Alpha";
        QTest::newRow("html") << "&HTML:"
                              << "HTML";
        QTest::newRow("pick") << "&Pick Screen Color"
                              << "Pick";
        QTest::newRow("add") << "&Add to Custom Colors"
                             << "Add";
    }

    void textsAreTagged()
    {
        QFETCH(QString, standard);
        QFETCH(QString, key);
        const CustomColorDialog picker;
        auto* dialog = picker.findChild<QColorDialog*>();
        QEvent language(QEvent::LanguageChange); // the toolkit's dialog sets its own texts again
        QApplication::sendEvent(dialog, &language);
        int found = 0;
        const auto widgets = dialog->findChildren<QWidget*>();
        for (const QWidget* widget : widgets) {
            if (widget->property("text").toString() != standard)
                continue;
            ++found;
            QCOMPARE(widget->property("name").toString(), key);
        }
        QCOMPARE(found, 1);
    }

    void everyLabelAndButtonIsTagged()
    {
        const CustomColorDialog picker;
        int tagged = 0;
        const auto widgets = picker.findChild<QColorDialog*>()->findChildren<QWidget*>();
        for (const QWidget* widget : widgets) {
            const bool hasText =
                qobject_cast<const QLabel*>(widget) || qobject_cast<const QPushButton*>(widget);
            QCOMPARE(widget->property("name").isValid(), hasText);
            tagged += hasText ? 1 : 0;
        }
        QVERIFY(tagged >= 14);
    }

    void showsTheKeysWithoutALanguage_data() { addTextRows(); }

    void showsTheKeysWithoutALanguage()
    {
        QFETCH(bool, button);
        QFETCH(QString, name);
        const CustomColorDialog picker;
        QTEST(shownText(picker, button, name), "source");
    }

    void labelsFollowTheLanguage_data() { addTextRows(); }

    void labelsFollowTheLanguage()
    {
        QFETCH(bool, button);
        QFETCH(QString, name);
        QFETCH(QString, source);
        switchLanguage(QStringLiteral("xx"));
        CustomColorDialog picker; // in the language from its construction
        QCOMPARE(shownText(picker, button, name), QStringLiteral("xx ") + source);
        switchLanguage(QStringLiteral("yy"));
        QCOMPARE(shownText(picker, button, name), QStringLiteral("xx ") + source); // not by itself
        picker.retranslate();
        QCOMPARE(shownText(picker, button, name), QStringLiteral("yy ") + source);
        switchLanguage(QStringLiteral("en"));
        picker.retranslate();
        QCOMPARE(shownText(picker, button, name), source);
    }

    void labelsOutliveTheToolkitsLanguageChange_data() { addTextRows(); }

    /// A host that installs a translator for its own texts sends every window this event.
    void labelsOutliveTheToolkitsLanguageChange()
    {
        QFETCH(bool, button);
        QFETCH(QString, name);
        QFETCH(QString, source);
        switchLanguage(QStringLiteral("xx"));
        QWidget host;
        CustomColorDialog picker(&host);
        QEvent language(QEvent::LanguageChange);
        QApplication::sendEvent(&host, &language);
        QCOMPARE(shownText(picker, button, name), QStringLiteral("xx ") + source);
    }

    void otherTextsAreLeftAlone()
    {
        switchLanguage(QStringLiteral("xx"));
        CustomColorDialog picker;
        picker.retranslate();
        QCOMPARE(shownText(picker, false, QStringLiteral("HTML")), QStringLiteral("&HTML:"));
        QCOMPARE(shownText(picker, false, QStringLiteral("Alpha")), QStringLiteral("A&lpha channel:"));
    }

    void startColorIsNoChoice_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::addColumn<QString>("shown");
        QTest::newRow("blue") << QColor(0x12, 0x34, 0xf6) << "#1234f6";
        QTest::newRow("white, as at first") << QColor(Qt::white) << "#ffffff";
        QTest::newRow("no colour") << QColor() << "#000000";
    }

    void startColorIsNoChoice()
    {
        QFETCH(QColor, color);
        QFETCH(QString, shown);
        Shown window;
        window.picker.setCurrentColor(color);
        QCoreApplication::processEvents();
        QCOMPARE(window.told, QStringList());
        QCOMPARE(window.picker.currentColor().name(), shown);
        QCOMPARE(window.html()->text(), shown);
        // The dialog itself is heard again.
        type(window.html(), QStringLiteral("#369"));
        QCOMPARE(window.told, QStringList(QStringLiteral("moved #336699")));
    }

    void showingSendsNothing()
    {
        Shown shown;
        shown.picker.hide();
        shown.picker.show();
        QCoreApplication::processEvents();
        QCOMPARE(shown.told, QStringList());
    }

    void everyKeyInASpinBoxIsTold_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("told");
        QTest::newRow("red up") << "Red" << int(Qt::Key_Up) << "moved #818080";
        QTest::newRow("green down") << "Green" << int(Qt::Key_Down) << "moved #807f80";
        QTest::newRow("blue up") << "Blue" << int(Qt::Key_Up) << "moved #808081";
        QTest::newRow("value up") << "Val" << int(Qt::Key_Up) << "moved #818181";
    }

    void everyKeyInASpinBoxIsTold()
    {
        QFETCH(QString, name);
        QFETCH(int, key);
        QFETCH(QString, told);
        Shown shown;
        shown.picker.setCurrentColor(QColor(0x80, 0x80, 0x80));
        auto* spinBox = entry<QSpinBox>(shown.picker, qPrintable(name));
        QVERIFY(spinBox);
        QTest::keyClick(spinBox, Qt::Key(key));
        QCOMPARE(shown.told, QStringList(told));
        QTest::keyClick(spinBox, Qt::Key(key));
        QCOMPARE(shown.told.size(), 2);
        QVERIFY(shown.picker.isVisible());
    }

    void movesInTheColorFieldAreTold()
    {
        Shown shown;
        QWidget* field = nullptr;
        const auto widgets = shown.dialog()->findChildren<QWidget*>();
        for (QWidget* widget : widgets) {
            if (QByteArray(widget->metaObject()->className()).endsWith("QColorPicker"))
                field = widget;
        }
        QVERIFY(field && field->isVisible());
        // In the middle of the brightness, for white and black are the same all over the field.
        shown.picker.setCurrentColor(QColor::fromHsv(0, 255, 200));
        QStringList seen;
        const auto point = [&](QEvent::Type type, const QPoint& local) {
            const int before = shown.told.size();
            QMouseEvent event(type, local, field->mapToGlobal(local), Qt::LeftButton, Qt::LeftButton,
                              Qt::NoModifier);
            QApplication::sendEvent(field, &event);
            QCOMPARE(shown.told.size(), before + 1);
            QCOMPARE(shown.told.last(), QStringLiteral("moved ") + shown.picker.currentColor().name());
            seen.append(shown.told.last());
        };
        point(QEvent::MouseButtonPress, QPoint(40, 60));
        point(QEvent::MouseMove, QPoint(90, 60));
        point(QEvent::MouseMove, QPoint(90, 120));
        QCOMPARE(seen.removeDuplicates(), 0);
    }

    void ends_data()
    {
        QTest::addColumn<QString>("how");
        QTest::addColumn<QStringList>("told");
        const QStringList accepted = {QStringLiteral("moved #336699"), QStringLiteral("selected #336699"),
                                      QStringLiteral("closed"), QStringLiteral("accepted #336699"),
                                      QStringLiteral("closed")};
        const QStringList rejected = {QStringLiteral("moved #336699"), QStringLiteral("rejected"),
                                      QStringLiteral("closed")};
        QTest::newRow("OK button") << "OK" << accepted;
        QTest::newRow("Enter") << "Enter" << accepted;
        QTest::newRow("Cancel button") << "Cancel" << rejected;
        QTest::newRow("Escape") << "Escape" << rejected;
        QTest::newRow("close button")
            << "Close" << QStringList({QStringLiteral("moved #336699"), QStringLiteral("closed")});
    }

    void end(Shown& shown, const QString& how)
    {
        if (how == QLatin1String("Enter"))
            QTest::keyClick(shown.html(), Qt::Key_Return);
        else if (how == QLatin1String("Escape"))
            QTest::keyClick(shown.html(), Qt::Key_Escape);
        else if (how == QLatin1String("Close"))
            QTest::mouseClick(shown.picker.findChild<QPushButton*>(QStringLiteral("btnClose")),
                              Qt::LeftButton);
        else
            QTest::mouseClick(named<QPushButton>(shown.picker, qPrintable(how)), Qt::LeftButton);
    }

    void ends()
    {
        QFETCH(QString, how);
        Shown shown;
        type(shown.html(), QStringLiteral("#369"));
        end(shown, how);
        QTEST(shown.told, "told");
        QVERIFY(!shown.picker.isVisible());
    }

    void mayBeOpenedAgain_data() { ends_data(); }

    void mayBeOpenedAgain()
    {
        QFETCH(QString, how);
        QFETCH(QStringList, told);
        Shown shown;
        type(shown.html(), QStringLiteral("#369"));
        end(shown, how);
        shown.told.clear();
        shown.picker.show();
        QVERIFY(shown.picker.isVisible());
        QVERIFY(shown.dialog()->isVisible());
        type(shown.html(), QStringLiteral("#963"));
        end(shown, how);
        QCOMPARE(shown.told, told.replaceInStrings(QStringLiteral("336699"), QStringLiteral("996633")));
        QVERIFY(!shown.picker.isVisible());
    }

    void lockedPickerStaysOpenWithItsContent_data()
    {
        QTest::addColumn<QString>("how");
        QTest::newRow("OK button") << "OK";
        QTest::newRow("Enter") << "Enter";
        QTest::newRow("Cancel button") << "Cancel";
        QTest::newRow("Escape") << "Escape";
        QTest::newRow("close button") << "Close";
    }

    void lockedPickerStaysOpenWithItsContent()
    {
        QFETCH(QString, how);
        Shown shown;
        QTest::mouseClick(shown.picker.findChild<QPushButton*>(QStringLiteral("btnShow")), Qt::LeftButton);
        end(shown, how);
        QVERIFY(shown.picker.isVisible());
        QVERIFY(shown.dialog()->isVisible());
    }

    void contentFillsTheWindow_data()
    {
        QTest::addColumn<int>("opened"); // times
        QTest::newRow("first time") << 1;
        QTest::newRow("second time") << 2;
        QTest::newRow("third time") << 3;
    }

    void contentFillsTheWindow()
    {
        QFETCH(int, opened);
        Shown shown;
        for (int i = 1; i < opened; ++i) {
            end(shown, QStringLiteral("Cancel"));
            shown.picker.move(shown.picker.pos() + QPoint(30, 40));
            shown.picker.show();
        }
        const QRect content = shown.dialog()->geometry();
        const auto* title = shown.picker.findChild<TitleWidget*>();
        QVERIFY2(content.top() > title->geometry().bottom() && content.top() < 40 && content.left() < 8,
                 qPrintable(QStringLiteral("at (%1, %2)").arg(content.x()).arg(content.y())));
        QVERIFY(shown.picker.rect().contains(content));
        QVERIFY(content.width() >= shown.dialog()->minimumSizeHint().width());
    }

    void visibilityShowsTheDialogAtOnce()
    {
        QWidget host;
        host.resize(300, 200);
        CustomColorDialog picker(&host);
        picker.setWindowFlags(picker.windowFlags() | Qt::Window);
        bool pending = true;
        QMetaObject::invokeMethod(
            &host, [&pending] { pending = false; }, Qt::QueuedConnection);
        picker.setVisible(true);
        QVERIFY(!pending); // what was pending has been done
        QVERIFY(picker.isVisible());
        const auto* dialog = picker.findChild<QColorDialog*>();
        QVERIFY(dialog->isVisible());
        QCOMPARE(picker.focusWidget(), dialog);

        pending = true;
        QMetaObject::invokeMethod(
            &host, [&pending] { pending = false; }, Qt::QueuedConnection);
        picker.setVisible(false);
        QVERIFY(!picker.isVisible());
        QVERIFY(!dialog->isVisible());
        QVERIFY(pending); // only showing does so
        QCoreApplication::processEvents();
    }
};

VD_TEST_MAIN(TestCustomColorDialog)
#include "tst_customcolordialog.moc"
