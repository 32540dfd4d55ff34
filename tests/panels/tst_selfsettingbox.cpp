#include "paintselfwidget.h"
#include "selfsettingbox.h"
#include "testcase.h"
#include "testcharttoolsdata.h"
#include "translatemanager1.h"

#include <spineditbox.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <functional>
#include <memory>

using namespace vardeno::testcharttools;

namespace {

/// The control that the caption `source` names.
template <typename Control>
Control* captionedText(const QWidget* panel, const char* source)
{
    for (const QLabel* label : panel->findChildren<QLabel*>()) {
        const QString whole = label->toolTip().isEmpty() ? label->text() : label->toolTip();
        if (whole == QLatin1String(source))
            return qobject_cast<Control*>(label->buddy());
    }
    return nullptr;
}

QImage textIcon(const QPushButton* button)
{
    return button->icon().pixmap(button->iconSize()).toImage();
}

QImage textSwatch(const QColor& color)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.fillRect(1, 1, 14, 14, color);
    painter.end();
    return pixmap.toImage();
}

QImage disabledTextSwatch()
{
    QPixmap pixmap(40, 20);
    pixmap.fill(QColor("#333337"));
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::transparent);
    painter.setPen(QColor("#636474"));
    painter.drawRect(1, 1, 38, 18);
    painter.drawPixmap(0, 0, QPixmap(":/resources/images/disable.png"));
    painter.end();
    return pixmap.toImage();
}

/// Differs from the default record in every field.
SelfChartData otherRecord()
{
    SelfChartData data;
    data.showSelfText = false;
    data.selfText = QString::fromUtf8("屏幕 RT5 \u00e9").toStdString();
    data.selfTextSize = 31;
    data.selfTextColor = {255, 0, 0, 255};
    data.showResolution = false;
    data.resolutionTextSize = 17;
    data.resolutionTextColor = {1, 2, 3, 200};
    return data;
}

} // namespace

Q_DECLARE_METATYPE(SelfChartData)

/// The settings of the custom text and the information line.
class TestSelfSettingBox : public TestCase
{
    Q_OBJECT

private:
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<PaintSelfWidget> m_layer;
    SelfSettingBox* m_panel = nullptr;
    QLineEdit* m_elsewhere = nullptr; ///< takes the focus outside the panel

    QCheckBox* textSwitch() const { return captionedText<QCheckBox>(m_panel, "Display custom text"); }
    QLineEdit* text() const { return m_panel->findChild<QLineEdit*>("selfInputLineEdit"); }
    SpinEditBox* textSize() const { return captionedText<SpinEditBox>(m_panel, "Text Size"); }
    QPushButton* textColor() const { return m_panel->findChild<QPushButton*>("selfTextColorButton"); }
    QCheckBox* resolutionSwitch() const { return captionedText<QCheckBox>(m_panel, "Show Resolution"); }
    SpinEditBox* resolutionSize() const { return captionedText<SpinEditBox>(m_panel, "Show Size"); }
    QPushButton* resolutionColor() const { return m_panel->findChild<QPushButton*>("resolutionColorButton"); }
    QList<QWidget*> inputs() const
    {
        return {textSwitch(),       text(),           textSize(),       textColor(),
                resolutionSwitch(), resolutionSize(), resolutionColor()};
    }
    QCheckBox* switchOf(bool ofText) const { return ofText ? textSwitch() : resolutionSwitch(); }
    SpinEditBox* sizeOf(bool ofText) const { return ofText ? textSize() : resolutionSize(); }
    QPushButton* colorOf(bool ofText) const { return ofText ? textColor() : resolutionColor(); }

    static void type(QWidget* entry, const QString& keys)
    {
        entry->setFocus(Qt::MouseFocusReason);
        QVERIFY(entry->hasFocus());
        QTest::keyClick(entry, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(entry, Qt::Key_Delete);
        QTest::keyClicks(entry, keys);
    }

    /// The layer shows what one that is set up by `set` shows.
    void compareLayer(const std::function<void(PaintSelfWidget&)>& set)
    {
        PaintSelfWidget expected;
        expected.resize(m_layer->size());
        set(expected);
        expected.render();
        m_layer->render();
        VD_COMPARE_IMAGES(layerImage(*m_layer), layerImage(expected));
    }

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_window = std::make_unique<QWidget>();
        m_layer = std::make_unique<PaintSelfWidget>();
        m_layer->resize(1000, 400);
        m_panel = new SelfSettingBox;
        m_panel->setPaintSelfWidget(m_layer.get());
        m_elsewhere = new QLineEdit;
        auto* column = new QVBoxLayout(m_window.get());
        column->addWidget(m_panel);
        column->addWidget(m_elsewhere);
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        m_elsewhere->setFocus();
    }

    void cleanup()
    {
        TranslateManager1::instance().switchLanguage(QString());
        m_window.reset();
        m_layer.reset();
        TestCase::cleanup();
    }

    void panel()
    {
        QCOMPARE(m_panel->minimumWidth(), 410);
        QCOMPARE(m_panel->maximumWidth(), 410);
        const auto* inner = m_panel->findChild<QWidget*>("selfsettingbox");
        QVERIFY(inner);
        QCOMPARE(inner->width(), 410);
        QCOMPARE(inner->styleSheet(),
                 QStringLiteral("QWidget#selfsettingbox{border-left : 1px solid #535465; border-right : 1px "
                                "solid #535465;border-bottom : 1px solid #535465;}"));
        QVERIFY(inner->isAncestorOf(text()));
    }

    void captions()
    {
        QStringList shown;
        for (const QLabel* label : m_panel->findChildren<QLabel*>()) {
            shown.append(label->toolTip().isEmpty() ? label->text() : label->toolTip());
            QCOMPARE(label->size(), QSize(80, 24));
            QCOMPARE(label->alignment(), Qt::AlignRight | Qt::AlignVCenter);
        }
        QCOMPARE(shown, QStringList({"Display custom text", "Text Input", "Text Size", "Color",
                                     "Show Resolution", "Show Size", "Color"}));
    }

    void controls_data()
    {
        QTest::addColumn<int>("control");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QVariant>("role");
        QTest::addColumn<bool>("isSwitch");
        QTest::newRow("text switch") << 0 << QSize(28, 14) << QVariant() << true;
        QTest::newRow("text") << 1 << QSize(266, 24) << QVariant() << false;
        QTest::newRow("text size") << 2 << QSize(110, 24) << QVariant() << false;
        QTest::newRow("text colour") << 3 << QSize(16, 16) << QVariant("selfText") << false;
        QTest::newRow("resolution switch") << 4 << QSize(28, 14) << QVariant() << true;
        QTest::newRow("resolution size") << 5 << QSize(110, 24) << QVariant() << false;
        QTest::newRow("resolution colour") << 6 << QSize(16, 16) << QVariant("resolution") << false;
    }

    void controls()
    {
        QFETCH(int, control);
        QFETCH(QSize, size);
        QFETCH(QVariant, role);
        QFETCH(bool, isSwitch);
        const QWidget* input = inputs().at(control);
        QVERIFY(input);
        QCOMPARE(input->size(), size);
        QCOMPARE(input->property("btnProperty"), role);
        QCOMPARE(input->property("switchStyle").isValid(), isSwitch);
        QVERIFY(input->isEnabled());
    }

    void startValues()
    {
        QVERIFY(textSwitch()->isChecked());
        QVERIFY(resolutionSwitch()->isChecked());
        QCOMPARE(text()->text(), QStringLiteral("www.example.com"));
        QCOMPARE(text()->maxLength(), 50);
        for (const SpinEditBox* size : {textSize(), resolutionSize()}) {
            QCOMPARE(size->minimum(), 1.0);
            QCOMPARE(size->maximum(), 200.0);
            QCOMPARE(size->value(), 50.0);
            QCOMPARE(size->text(), QStringLiteral("50px"));
        }
        for (const QPushButton* button : {textColor(), resolutionColor()})
            QCOMPARE(textIcon(button).size(), QSize(16, 16));
    }

    void everyKeyReachesTheLayer()
    {
        QSignalSpy changes(m_panel, &SelfSettingBox::selfSignal);
        QSignalSpy forwarded(m_panel, &SettingPanel::changed);
        text()->setFocus();
        QTest::keyClick(text(), Qt::Key_End);
        QTest::keyClicks(text(), QStringLiteral("/b"));
        QCOMPARE(changes.count(), 2);
        QCOMPARE(forwarded.count(), 2);
        compareLayer([](PaintSelfWidget& layer) { layer.setSelfText("www.example.com/b"); });
    }

    void clearedTextClearsTheLayer()
    {
        type(text(), QString());
        QCOMPARE(text()->text(), QString());
        compareLayer([](PaintSelfWidget& layer) { layer.setSelfText(QString()); });
    }

    void fiftyCharactersAtMost()
    {
        type(text(), QString(50, QLatin1Char('a')) + QLatin1Char('b'));
        QCOMPARE(text()->text(), QString(50, QLatin1Char('a')));
        compareLayer([](PaintSelfWidget& layer) { layer.setSelfText(QString(50, QLatin1Char('a'))); });

        SelfChartData data;
        data.selfText = std::string(51, 'c');
        m_panel->setData(data);
        QCOMPARE(m_panel->getData().selfText, std::string(50, 'c'));
    }

    void emptyTextLeftBehind_data()
    {
        QTest::addColumn<bool>("byEnter");
        QTest::newRow("Enter") << true;
        QTest::newRow("another field") << false;
    }

    void emptyTextLeftBehind()
    {
        QFETCH(bool, byEnter);
        type(text(), QStringLiteral("chart"));
        m_elsewhere->setFocus();
        type(text(), QString());
        QCOMPARE(text()->text(), QString());
        byEnter ? QTest::keyClick(text(), Qt::Key_Return) : m_elsewhere->setFocus();
        QCOMPARE(text()->text(), QStringLiteral("chart"));
        compareLayer([](PaintSelfWidget& layer) { layer.setSelfText(QStringLiteral("chart")); });
    }

    void lockIsNoEndOfAnEdit()
    {
        type(text(), QString());
        m_panel->setControlsDisabled(true);
        QCOMPARE(text()->text(), QString());
        m_panel->setControlsDisabled(false);
        QCOMPARE(text()->text(), QString());

        // Leaving it afterwards is.
        QTest::mouseClick(text(), Qt::LeftButton);
        QVERIFY(text()->hasFocus());
        m_elsewhere->setFocus();
        QCOMPARE(text()->text(), QStringLiteral("www.example.com"));
    }

    void sizes_data()
    {
        QTest::addColumn<bool>("ofText");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("pixels");
        for (const bool ofText : {true, false}) {
            const auto name = [ofText](const char* what) {
                return QString(QLatin1String(ofText ? "text, " : "resolution, ") + QLatin1String(what))
                    .toUtf8();
            };
            QTest::newRow(name("smaller").constData()) << ofText << QStringLiteral("20") << 20;
            QTest::newRow(name("smallest").constData()) << ofText << QStringLiteral("1") << 1;
            QTest::newRow(name("largest").constData()) << ofText << QStringLiteral("200") << 200;
            QTest::newRow(name("truncated").constData()) << ofText << QStringLiteral("31.9") << 31;
        }
    }

    void sizes()
    {
        QFETCH(bool, ofText);
        QFETCH(QString, typed);
        QFETCH(int, pixels);
        m_panel->setData(SelfChartData());
        QSignalSpy changes(m_panel, &SelfSettingBox::selfSignal);
        type(sizeOf(ofText), typed);
        QCOMPARE(changes.count(), 0);
        QTest::keyClick(sizeOf(ofText), Qt::Key_Return);
        QCOMPARE(changes.count(), 1);
        const SelfChartData data = m_panel->getData();
        QCOMPARE(data.selfTextSize, ofText ? pixels : 50);
        QCOMPARE(data.resolutionTextSize, ofText ? 50 : pixels);
        compareLayer([&](PaintSelfWidget& layer) {
            layer.setSelfTextColor(QColor(0, 0, 100));
            layer.setResolutionColor(QColor(0, 0, 100));
            layer.setSelfTextSize(ushort(ofText ? pixels : 50));
            layer.setResolutionSize(ushort(ofText ? 50 : pixels));
        });
    }

    void invalidSizesGoBack_data()
    {
        QTest::addColumn<bool>("ofText");
        QTest::addColumn<QString>("typed");
        for (const bool ofText : {true, false}) {
            for (const char* typed : {"", "0", "201", "-5", "x", "20000"})
                QTest::newRow(qPrintable(QStringLiteral("%1, \"%2\"")
                                             .arg(QLatin1String(ofText ? "text" : "resolution"))
                                             .arg(QLatin1String(typed))))
                    << ofText << QString::fromLatin1(typed);
        }
    }

    void invalidSizesGoBack()
    {
        QFETCH(bool, ofText);
        QFETCH(QString, typed);
        sizeOf(ofText)->setValue(33);
        QSignalSpy changes(m_panel, &SelfSettingBox::selfSignal);
        type(sizeOf(ofText), typed);
        m_elsewhere->setFocus();
        QCOMPARE(sizeOf(ofText)->value(), 33.0);
        QCOMPARE(sizeOf(ofText)->text(), QStringLiteral("33px"));
        QCOMPARE(changes.count(), 0);
    }

    void groups_data()
    {
        QTest::addColumn<bool>("ofText");
        QTest::newRow("custom text") << true;
        QTest::newRow("resolution") << false;
    }

    void groups()
    {
        QFETCH(bool, ofText);
        m_panel->setButtonColor(QColor(10, 200, 30), colorOf(ofText));
        const auto colored = [ofText](PaintSelfWidget& layer) {
            ofText ? layer.setSelfTextColor(QColor(10, 200, 30))
                   : layer.setResolutionColor(QColor(10, 200, 30));
        };
        QSignalSpy changes(m_panel, &SelfSettingBox::selfSignal);
        QTest::mouseClick(switchOf(ofText), Qt::LeftButton);
        QCOMPARE(changes.count(), 1);
        VD_COMPARE_IMAGES(textIcon(colorOf(ofText)), disabledTextSwatch());
        QVERIFY(!sizeOf(ofText)->isEnabled() && !colorOf(ofText)->isEnabled());
        QCOMPARE(text()->isEnabled(), !ofText);
        QVERIFY(switchOf(ofText)->isEnabled() && switchOf(!ofText)->isEnabled());
        QVERIFY(sizeOf(!ofText)->isEnabled() && colorOf(!ofText)->isEnabled());
        compareLayer([&](PaintSelfWidget& layer) {
            colored(layer);
            ofText ? layer.setSelfTextVisible(false) : layer.setResolutionVisible(false);
        });

        QTest::mouseClick(switchOf(ofText), Qt::LeftButton);
        QCOMPARE(changes.count(), 2);
        VD_COMPARE_IMAGES(textIcon(colorOf(ofText)), textSwatch(QColor(10, 200, 30)));
        QVERIFY(sizeOf(ofText)->isEnabled() && colorOf(ofText)->isEnabled() && text()->isEnabled());
        compareLayer(colored);
    }

    void colors_data() { groups_data(); }

    void colors()
    {
        QFETCH(bool, ofText);
        const QString role = QLatin1String(ofText ? "selfText" : "resolution");
        m_panel->setButtonColor(QColor(1, 2, 3), colorOf(ofText));
        QSignalSpy asked(m_panel,
                         ofText ? &SelfSettingBox::selfTextSignal : &SelfSettingBox::resolutionSignal);
        QSignalSpy askedOther(m_panel,
                              ofText ? &SelfSettingBox::resolutionSignal : &SelfSettingBox::selfTextSignal);
        QSignalSpy forwarded(m_panel, &SettingPanel::colorRequested);
        QSignalSpy changes(m_panel, &SelfSettingBox::selfSignal);
        QTest::mouseClick(colorOf(ofText), Qt::LeftButton);
        QCOMPARE(asked.count(), 1);
        QCOMPARE(asked.at(0).at(0).value<QPushButton*>(), colorOf(ofText));
        QCOMPARE(forwarded.count(), 1);
        QCOMPARE(forwarded.at(0).at(0).value<QPushButton*>(), colorOf(ofText));
        QCOMPARE(askedOther.count(), 0);
        QCOMPARE(changes.count(), 0);

        for (const QColor& picked : {QColor(Qt::red), QColor(0, 0, 255, 120)}) {
            m_panel->setButtonColor(picked, colorOf(ofText));
            VD_COMPARE_IMAGES(textIcon(colorOf(ofText)), textSwatch(picked));
            compareLayer([&](PaintSelfWidget& layer) {
                ofText ? layer.setSelfTextColor(picked) : layer.setResolutionColor(picked);
            });
        }
        QCOMPARE(changes.count(), 2);

        m_panel->restoreButtonColor(QStringLiteral("no such role"));
        m_panel->restoreButtonColor(QLatin1String(ofText ? "resolutionn" : "selftext"));
        QCOMPARE(changes.count(), 2);
        m_panel->restoreButtonColor(role);
        QCOMPARE(changes.count(), 3);
        VD_COMPARE_IMAGES(textIcon(colorOf(ofText)), textSwatch(QColor(1, 2, 3)));
        compareLayer([&](PaintSelfWidget& layer) {
            ofText ? layer.setSelfTextColor(QColor(1, 2, 3)) : layer.setResolutionColor(QColor(1, 2, 3));
        });
    }

    void equalColorChangesNothing()
    {
        m_panel->setButtonColor(Qt::green, textColor());
        QSignalSpy changes(m_panel, &SelfSettingBox::selfSignal);
        m_panel->setButtonColor(Qt::green, textColor());
        m_panel->setButtonColor(Qt::red, nullptr);
        QCOMPARE(changes.count(), 0);
        VD_COMPARE_IMAGES(textIcon(textColor()), textSwatch(Qt::green));
    }

    /// The cabinet count has a colour but no button in the panel.
    void buttonOfAnotherRole()
    {
        m_panel->setButtonColor(Qt::green, resolutionColor());
        QPushButton button;
        button.setFixedSize(16, 16);
        button.setProperty("btnProperty", "boxnum");
        QSignalSpy changes(m_panel, &SelfSettingBox::selfSignal);
        m_panel->setButtonColor(Qt::red, &button);
        QCOMPARE(changes.count(), 1);
        VD_COMPARE_IMAGES(textIcon(&button), textSwatch(Qt::red));
        VD_COMPARE_IMAGES(textIcon(resolutionColor()), textSwatch(Qt::green));
        compareLayer([](PaintSelfWidget& layer) { layer.setResolutionColor(Qt::green); });
    }

    void boxNumSignalAsksForNoButton()
    {
        QSignalSpy asked(m_panel, &SettingPanel::colorRequested);
        Q_EMIT m_panel->boxNumSignal();
        QCOMPARE(asked.count(), 1);
        QVERIFY(!asked.at(0).at(0).value<QPushButton*>());
    }

    void records_data()
    {
        QTest::addColumn<SelfChartData>("data");
        QTest::newRow("default") << SelfChartData();
        QTest::newRow("everything else") << otherRecord();
        SelfChartData data = otherRecord();
        data.showSelfText = true;
        QTest::newRow("text on") << data;
        data = otherRecord();
        data.showResolution = true;
        QTest::newRow("resolution on") << data;
        data.selfText.clear();
        QTest::newRow("no text") << data;
        data.selfText = QString(50, QChar(0x5c4f)).toStdString();
        data.selfTextSize = 200;
        data.resolutionTextSize = 1;
        data.selfTextColor = {0, 0, 0, 0};
        QTest::newRow("limits") << data;
    }

    void records()
    {
        QFETCH(SelfChartData, data);
        for (const SelfChartData& before : {SelfChartData(), otherRecord()}) {
            m_panel->setData(before);
            m_panel->setData(data);
            QVERIFY(m_panel->getData() == data);
            compareLayer([&](PaintSelfWidget& layer) {
                layer.setSelfTextVisible(data.showSelfText);
                layer.setSelfText(QString::fromStdString(data.selfText));
                layer.setSelfTextSize(ushort(data.selfTextSize));
                layer.setSelfTextColor(toQColor(data.selfTextColor));
                layer.setResolutionVisible(data.showResolution);
                layer.setResolutionSize(ushort(data.resolutionTextSize));
                layer.setResolutionColor(toQColor(data.resolutionTextColor));
            });
            QCOMPARE(textColor()->isEnabled(), data.showSelfText);
            QCOMPARE(resolutionColor()->isEnabled(), data.showResolution);
        }
    }

    void onlyADifferenceIsAnnounced()
    {
        SelfChartData data = otherRecord();
        m_panel->setData(data);
        QSignalSpy changes(m_panel, &SelfSettingBox::selfSignal);
        m_panel->setData(data);
        QCOMPARE(changes.count(), 0);
        data.selfTextColor = {1, 2, 3, 255};
        m_panel->setData(data);
        QCOMPARE(changes.count(), 1);
        data.resolutionTextSize += 1;
        m_panel->setData(data);
        QCOMPARE(changes.count(), 2);
    }

    /// Sizes and colors are pushed whether or not the panel has them already.
    void aRecordReachesAFreshPainter()
    {
        SelfChartData data;
        data.selfTextSize = 31;
        data.resolutionTextSize = 17;
        m_panel->setData(data);
        m_layer->setSelfTextSize(40);
        m_layer->setResolutionSize(40);
        m_layer->setSelfTextColor(Qt::red);
        m_layer->setResolutionColor(Qt::red);
        m_panel->setData(data);
        compareLayer([](PaintSelfWidget& layer) {
            layer.setSelfTextSize(31);
            layer.setResolutionSize(17);
            layer.setSelfTextColor(QColor(0, 0, 100));
            layer.setResolutionColor(QColor(0, 0, 100));
        });
    }

    void recordOfAGroupThatIsOff()
    {
        m_panel->setData(otherRecord());
        QTest::mouseClick(textSwitch(), Qt::LeftButton);
        VD_COMPARE_IMAGES(textIcon(textColor()), textSwatch(Qt::red));
        QCOMPARE(m_panel->getData().selfTextColor, RgbaColor({255, 0, 0, 255}));
    }

    void switchedOffGroupKeepsItsColorInTheRecord()
    {
        SelfChartData data;
        data.selfTextColor = {9, 8, 7, 255};
        data.resolutionTextColor = {4, 5, 6, 255};
        m_panel->setData(data);
        QTest::mouseClick(textSwitch(), Qt::LeftButton);
        QTest::mouseClick(resolutionSwitch(), Qt::LeftButton);
        data.showSelfText = false;
        data.showResolution = false;
        QVERIFY(m_panel->getData() == data);
    }

    void valuesOutOfRangeAreCut()
    {
        SelfChartData data;
        data.selfTextSize = 0;
        data.resolutionTextSize = 70000;
        data.selfTextColor = {-1, 256, 100000, 255};
        m_panel->setData(data);
        QCOMPARE(m_panel->getData().selfTextSize, 1);
        QCOMPARE(m_panel->getData().resolutionTextSize, 200);
        QCOMPARE(m_panel->getData().selfTextColor, RgbaColor({0, 255, 255, 255}));
    }

    void wholeRecord()
    {
        TestChartToolsData record;
        record.publicData.boxRow = 3;
        m_panel->setData(otherRecord());
        m_panel->collectInto(record);
        QVERIFY(record.selfData == otherRecord());
        QCOMPARE(record.publicData.boxRow, 3);
        record.selfData.selfTextSize = 77;
        m_panel->pushFrom(record);
        QCOMPARE(m_panel->getData().selfTextSize, 77);
    }

    void lock()
    {
        text()->setFocus();
        m_panel->setControlsDisabled(true);
        for (const QWidget* input : inputs())
            QVERIFY(!input->isEnabled());
        QVERIFY(m_panel->hasFocus());
        QVERIFY(!text()->hasFocus());

        m_elsewhere->setFocus();
        m_panel->setControlsDisabled(false);
        for (const QWidget* input : inputs())
            QVERIFY(input->isEnabled());
        QVERIFY(m_elsewhere->hasFocus());
    }

    void unlockAsksTheSwitches_data()
    {
        QTest::addColumn<bool>("textOn");
        QTest::addColumn<bool>("resolutionOn");
        QTest::newRow("both off") << false << false;
        QTest::newRow("text") << true << false;
        QTest::newRow("resolution") << false << true;
    }

    void unlockAsksTheSwitches()
    {
        QFETCH(bool, textOn);
        QFETCH(bool, resolutionOn);
        textSwitch()->setChecked(textOn);
        resolutionSwitch()->setChecked(resolutionOn);
        m_panel->setControlsDisabled(true);
        m_panel->setControlsDisabled(false);
        QVERIFY(textSwitch()->isEnabled() && resolutionSwitch()->isEnabled());
        for (const QWidget* input : QList<QWidget*>({text(), textSize(), textColor()}))
            QCOMPARE(input->isEnabled(), textOn);
        for (const QWidget* input : QList<QWidget*>({resolutionSize(), resolutionColor()}))
            QCOMPARE(input->isEnabled(), resolutionOn);
    }

    /// A switch that is operated by code during a lock enables nothing.
    void switchesDuringALock()
    {
        m_panel->setControlsDisabled(true);
        textSwitch()->setChecked(false);
        textSwitch()->setChecked(true);
        for (const QWidget* input : inputs())
            QVERIFY(!input->isEnabled());
    }

    void lockFocusReason()
    {
        Qt::FocusReason reason = Qt::NoFocusReason;
        class Filter : public QObject
        {
        public:
            explicit Filter(Qt::FocusReason& reason)
                : m_reason(reason)
            {
            }
            bool eventFilter(QObject* watched, QEvent* event) override
            {
                if (event->type() == QEvent::FocusIn)
                    m_reason = static_cast<QFocusEvent*>(event)->reason();
                return QObject::eventFilter(watched, event);
            }

        private:
            Qt::FocusReason& m_reason;
        } filter(reason);
        m_panel->installEventFilter(&filter);
        m_panel->setControlsDisabled(true);
        QCOMPARE(reason, Qt::OtherFocusReason);
    }

    void unlockClearsTheEntriesFocus_data()
    {
        QTest::addColumn<int>("control");
        QTest::newRow("text") << 1;
        QTest::newRow("text size") << 2;
        QTest::newRow("resolution size") << 5;
    }

    void unlockClearsTheEntriesFocus()
    {
        QFETCH(int, control);
        QWidget* const entry = inputs().at(control);
        entry->setFocus();
        QVERIFY(entry->hasFocus());
        m_panel->setControlsDisabled(false);
        QVERIFY(!entry->hasFocus());
        QVERIFY(!m_panel->hasFocus());
    }

    void worksWithoutAPainter()
    {
        SelfSettingBox panel;
        panel.setPaintSelfWidget(nullptr);
        QSignalSpy changes(&panel, &SelfSettingBox::selfSignal);
        panel.setData(otherRecord());
        QVERIFY(changes.count() > 0);
        QVERIFY(panel.getData() == otherRecord());
        panel.retranslate();
    }

    void outlivesItsPainter()
    {
        m_layer.reset();
        m_panel->setData(otherRecord());
        QVERIFY(m_panel->getData() == otherRecord());
        m_panel->retranslate();
        m_layer = std::make_unique<PaintSelfWidget>();
    }

    void retranslates()
    {
        TranslateManager1& manager = TranslateManager1::instance();
        QVERIFY(manager.translator().load(sourcePath("translations/zh_CN.ts")));
        manager.switchLanguage(QStringLiteral("zh_CN"));
        m_panel->retranslate();
        const QString caption =
            vardeno::trans::translate(manager.translator(), QStringLiteral("TestChartTools"),
                                      QStringLiteral("Widget"), QStringLiteral("Text Input"));
        QVERIFY(caption != QLatin1String("Text Input"));
        QStringList shown;
        for (const QLabel* label : m_panel->findChildren<QLabel*>())
            shown.append(label->toolTip().isEmpty() ? label->text() : label->toolTip());
        QVERIFY(shown.contains(caption));
        QVERIFY(!shown.contains(QStringLiteral("Text Input")));
        compareLayer([](PaintSelfWidget& layer) { layer.retranslate(); });

        manager.switchLanguage(QString());
        m_panel->retranslate();
        QVERIFY(captionedText<QLineEdit>(m_panel, "Text Input"));
        compareLayer([](PaintSelfWidget& layer) { layer.retranslate(); });
    }
};

VD_TEST_MAIN(TestSelfSettingBox)
#include "tst_selfsettingbox.moc"
