#include "charttool.h"
#include "language.h"

#include <chartpreview.h>
#include <customcolordialog.h>
#include <customdialog.h>

#include <QAccessible>
#include <QColorDialog>
#include <QComboBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QSet>
#include <QSlider>
#include <QToolButton>

using namespace charttool;

namespace {

/// A tool with everything switched on that a host may switch on.
struct FullDesk
{
    FullDesk()
        : tool(new VTestChartTools(new QWidget(&window)))
        , user(*tool)
    {
        window.setCentralWidget(tool->parentWidget());
        new QHBoxLayout(tool->parentWidget());
        tool->parentWidget()->layout()->addWidget(tool);
        window.resize(1400, 760);
        for (const char* property : {"followsHost", "zoomablePreview", "undoKeys", "wheelScrollsPanels"})
            tool->setProperty(property, true);
        TestChartToolsData record = smallRecord();
        record.inLineData.showCircle = record.inLineData.showDiagonal = true;
        record.inLineData.showSerialNumber = true;
        record.logoData.showLogo = record.selfData.showSelfText = record.selfData.showResolution = true;
        tool->applyRecord(record);
    }

    QMainWindow window;
    VTestChartTools* tool;
    User user;
};

/// What a person operates: what takes the focus, and what only the mouse does.
QVector<QWidget*> controlsIn(const QWidget* root)
{
    QVector<QWidget*> controls;
    for (auto* widget : root->findChildren<QWidget*>()) {
        const bool isPart = qobject_cast<QAbstractSpinBox*>(widget->parentWidget()) ||
                            qobject_cast<QComboBox*>(widget->parentWidget()) ||
                            widget->inherits("QComboBoxPrivateContainer") ||
                            widget->inherits("QComboBoxListView") || qobject_cast<QScrollBar*>(widget) ||
                            qobject_cast<QScrollArea*>(widget) || widget->objectName().startsWith("qt_");
        if (!isPart && (qobject_cast<QAbstractButton*>(widget) || widget->focusPolicy() & Qt::TabFocus))
            controls.append(widget);
    }
    return controls;
}

/// What a screen reader reads out.
QString nameOf(QWidget* widget)
{
    QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(widget);
    return reader ? reader->text(QAccessible::Name) : QString();
}

QString place(const QWidget* widget)
{
    return QLatin1String(widget->metaObject()->className()) + QLatin1Char(' ') + widget->objectName() +
           QLatin1String(" in ") + widget->parentWidget()->objectName();
}

/// The gradient list's page is never shown.
bool isShownSometimes(const QWidget* widget)
{
    return !widget->objectName().startsWith(QLatin1String("_gradient"));
}

/// The picker's inside.
bool isOfTheToolkit(const QWidget* widget)
{
    while (widget && !qobject_cast<const QColorDialog*>(widget))
        widget = widget->parentWidget();
    return widget;
}

/// What a tool tip is, or the word on the control itself, which needs none.
bool isExplained(const QWidget* widget)
{
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    const auto* box = qobject_cast<const QComboBox*>(widget);
    return !widget->toolTip().isEmpty() || (button && !button->text().isEmpty()) || box ||
           qobject_cast<const ChartPreview*>(widget);
}

} // namespace

class TestAccessibility : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        log().allowWarning(QStringLiteral("^This plugin does not support"));
    }
    void cleanup()
    {
        TranslateManager1::instance().switchLanguage(QString());
        TestCase::cleanup();
    }

    void everyControlHasANameAndAHint()
    {
        FullDesk desk;
        QStringList nameless;
        QStringList unexplained;
        const QVector<QWidget*> controls = controlsIn(desk.tool);
        QVERIFY2(controls.size() > 50, qPrintable(QString::number(controls.size())));
        for (QWidget* control : controls) {
            if (isShownSometimes(control) && nameOf(control).isEmpty())
                nameless.append(place(control));
            if (isShownSometimes(control) && !isExplained(control) && !isOfTheToolkit(control))
                unexplained.append(place(control));
        }
        QVERIFY2(nameless.isEmpty(), qPrintable(nameless.join('\n')));
        QVERIFY2(unexplained.isEmpty(), qPrintable(unexplained.join('\n')));
    }

    void theDialogsToo()
    {
        CustomDialog question;
        question.setAttribute(Qt::WA_DeleteOnClose, false);
        CustomColorDialog picker;
        for (const QWidget* dialog : {static_cast<QWidget*>(&question), static_cast<QWidget*>(&picker)}) {
            QStringList nameless;
            for (QWidget* control : controlsIn(dialog)) {
                if (nameOf(control).isEmpty())
                    nameless.append(place(control));
            }
            QVERIFY2(nameless.isEmpty(), qPrintable(nameless.join('\n')));
        }
    }

    /// Once round with Tab, and back.
    void everyControlIsReachedByTab_data()
    {
        QTest::addColumn<bool>("bar");
        QTest::addColumn<bool>("text");
        QTest::newRow("chessboard and picture") << false << false;
        QTest::newRow("color bar and text") << true << true;
    }
    void everyControlIsReachedByTab()
    {
        QFETCH(bool, bar);
        QFETCH(bool, text);
        FullDesk desk;
        TestChartToolsData record = desk.tool->getTestChartToolsData();
        record.basicData.chessChecked = !bar;
        record.basicData.colorBarChecked = bar;
        record.basicData.colorStripeColors = {{0, Qt::red}, {1, Qt::blue}};
        record.logoData.pictureLogo = !text;
        record.logoData.textLogo = text;
        desk.tool->applyRecord(record);
        QVERIFY(desk.user.show());
        QSet<QWidget*> wanted;
        for (QWidget* control : controlsIn(desk.tool)) {
            if (control->isVisible() && control->isEnabled())
                wanted.insert(control);
        }
        QVERIFY2(wanted.size() > 35, qPrintable(QString::number(wanted.size())));
        for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
            QSet<QWidget*> missed = wanted;
            desk.tool->preview()->setFocus();
            for (int i = 0; i < 2 * wanted.size(); ++i) {
                QTest::keyClick(desk.window.windowHandle(), key);
                QWidget* focus = desk.window.focusWidget();
                missed.remove(focus);
                if (qobject_cast<QRadioButton*>(focus)) { // arrow keys lead to the others
                    for (auto* other : focus->parentWidget()->findChildren<QRadioButton*>(
                             QString(), Qt::FindDirectChildrenOnly))
                        missed.remove(other);
                }
                if (focus == desk.tool->preview())
                    break;
            }
            QStringList names;
            for (const QWidget* widget : missed)
                names.append(place(widget));
            QVERIFY2(names.isEmpty(), qPrintable(names.join('\n')));
        }
    }

    void namesFollowTheLanguage()
    {
        FullDesk desk;
        desk.tool->loadLanguageFiles({sourcePath("translations/de.ts")});
        desk.tool->switchLanguage(QStringLiteral("de"));
        QCOMPARE(desk.tool->preview()->accessibleName(), QStringLiteral("Vorschau des Testbilds"));
        QStringList names;
        for (const auto* button : desk.user.named<QWidget>("previewBar")->findChildren<QPushButton*>())
            names.append(button->accessibleName());
        QVERIFY(names.contains(QString::fromUtf8("Vergrößern")));
    }
};

VD_TEST_MAIN(TestAccessibility)
#include "tst_accessibility.moc"
