#include "language.h"
#include "logosettingbox.h"
#include "paintpiclogowidget.h"
#include "painttextlogowidget.h"
#include "testcase.h"
#include "testcharttoolsdata.h"

#include <combobox.h>
#include <spineditbox.h>

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFrame>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QSignalSpy>
#include <QSlider>
#include <QStackedWidget>
#include <QStandardPaths>
#include <QStyleOptionSlider>
#include <QTemporaryDir>
#include <QTimer>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <functional>
#include <memory>

using namespace vardeno::testcharttools;

namespace {

constexpr QSize logoChart(400, 240);

QString wholeText(const QLabel* label)
{
    return label->toolTip().isEmpty() ? label->text() : label->toolTip();
}

QLabel* caption(const QWidget* panel, const char* source)
{
    for (QLabel* label : panel->findChildren<QLabel*>()) {
        if (wholeText(label) == QLatin1String(source))
            return label;
    }
    return nullptr;
}

/// The control that the caption `source` names.
template <typename Control>
Control* captioned(const QWidget* panel, const char* source)
{
    const QLabel* label = caption(panel, source);
    return label ? qobject_cast<Control*>(label->buddy()) : nullptr;
}

QImage icon(const QPushButton* button)
{
    return button->icon().pixmap(button->iconSize()).toImage();
}

QImage logoSwatch(const QColor& color)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.fillRect(1, 1, 14, 14, color);
    painter.end();
    return pixmap.toImage();
}

QImage disabledLogoSwatch()
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

QImage picture(const QSize& size, const QColor& color)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    image.setPixelColor(0, 0, Qt::white);
    return image;
}

/// What the widget paints, on nothing.
QImage painted(QWidget& widget)
{
    QImage image(widget.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

} // namespace

Q_DECLARE_METATYPE(LogoChartData)

/// The settings of the logo.
class TestLogoSettingBox : public TestCase
{
    Q_OBJECT

private:
    QTemporaryDir m_home;
    std::unique_ptr<QWidget> m_window;
    LogoSettingBox* m_panel = nullptr;
    QStackedWidget* m_stack = nullptr;
    PaintPicLogoWidget* m_picture = nullptr;
    PaintTextLogoWidget* m_text = nullptr;
    QLineEdit* m_elsewhere = nullptr; ///< takes the focus outside the panel

    QString picturePath() const { return m_home.filePath("logo.png"); }
    QPushButton* showButton() const { return captioned<QPushButton>(m_panel, "Show Logo"); }
    QRadioButton* radio(bool ofText) const { return m_panel->findChildren<QRadioButton*>().at(ofText); }
    QStackedWidget* pages() const { return m_panel->findChild<QStackedWidget*>(); }
    QPushButton* uploadButton() const { return m_panel->findChild<QPushButton*>("CancleButton"); }
    QSlider* scaleSlider() const { return captioned<QSlider>(m_panel, "Scale Logo"); }
    SpinEditBox* scaleEntry() const { return pages()->widget(0)->findChild<SpinEditBox*>(); }
    QPushButton* scaleReset() const { return m_panel->findChild<QPushButton*>("scalelogoBtn"); }
    QLineEdit* text() const { return captioned<QLineEdit>(m_panel, "Text Logo"); }
    SpinEditBox* textSize() const { return captioned<SpinEditBox>(m_panel, "Text Size"); }
    QPushButton* colorButton() const { return m_panel->findChild<QPushButton*>("textColorBtn"); }
    ComboBox* position() const { return captioned<ComboBox>(m_panel, "Display Position"); }
    SpinEditBox* moveX() const { return captioned<SpinEditBox>(m_panel, "X"); }
    SpinEditBox* moveY() const { return captioned<SpinEditBox>(m_panel, "Y"); }
    QSlider* opacitySlider() const { return captioned<QSlider>(m_panel, "Opacity"); }
    SpinEditBox* opacityEntry() const
    {
        auto others = m_panel->findChildren<SpinEditBox*>(QString(), Qt::FindDirectChildrenOnly);
        others.removeAll(moveX());
        others.removeAll(moveY());
        return others.size() == 1 ? others.first() : nullptr;
    }
    QPushButton* opacityReset() const { return m_panel->findChild<QPushButton*>("logoOpacityBtn"); }
    QList<QWidget*> inputsButShow() const
    {
        return {radio(false), radio(true), uploadButton(),  scaleSlider(),  scaleEntry(),
                scaleReset(), text(),      textSize(),      colorButton(),  position(),
                moveX(),      moveY(),     opacitySlider(), opacityEntry(), opacityReset()};
    }

    static void type(QWidget* entry, const QString& keys)
    {
        entry->setFocus(Qt::MouseFocusReason);
        QVERIFY(entry->hasFocus());
        QTest::keyClick(entry, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(entry, Qt::Key_Delete);
        QTest::keyClicks(entry, keys);
    }

    static void enter(QWidget* entry, const QString& keys)
    {
        type(entry, keys);
        QTest::keyClick(entry, Qt::Key_Return);
    }

    void showTextPage() { QTest::mouseClick(radio(true), Qt::LeftButton, {}, QPoint(8, 12)); }
    void showPicturePage() { QTest::mouseClick(radio(false), Qt::LeftButton, {}, QPoint(8, 12)); }

    static void send(QWidget* widget, QEvent::Type kind, const QPoint& at, Qt::MouseButtons held)
    {
        const Qt::MouseButton button = kind == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(kind, at, widget->mapToGlobal(at), button, held, Qt::NoModifier);
        QApplication::sendEvent(widget, &event);
    }

    static QPoint handle(const QSlider* slider)
    {
        QStyleOptionSlider option;
        option.initFrom(slider);
        option.orientation = slider->orientation();
        option.minimum = slider->minimum();
        option.maximum = slider->maximum();
        option.sliderPosition = slider->sliderPosition();
        option.sliderValue = slider->value();
        option.subControls = QStyle::SC_All;
        return slider->style()
            ->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, slider)
            .center();
    }

    /// Drags the handle to the left in steps, calls `step` after each of them, and lets it go.
    static void drag(QSlider* slider, const std::function<void()>& step)
    {
        QPoint at = handle(slider);
        send(slider, QEvent::MouseButtonPress, at, Qt::LeftButton);
        for (int i = 0; i < 3; ++i) {
            at.rx() -= 9;
            send(slider, QEvent::MouseMove, at, Qt::LeftButton);
            step();
        }
        send(slider, QEvent::MouseButtonRelease, at, Qt::NoButton);
    }

    /// The picture layer paints what one that is set up by `set` paints.
    void comparePicture(const std::function<void(PaintPicLogoWidget&)>& set)
    {
        PaintPicLogoWidget expected;
        expected.resize(logoChart);
        expected.setPicPath(picturePath().toStdString());
        set(expected);
        QCOMPARE(m_picture->size(), logoChart);
        VD_COMPARE_IMAGES(painted(*m_picture), painted(expected));
    }

    void compareText(const std::function<void(PaintTextLogoWidget&)>& set)
    {
        PaintTextLogoWidget expected;
        expected.resize(logoChart);
        set(expected);
        QCOMPARE(m_text->size(), logoChart);
        VD_COMPARE_IMAGES(painted(*m_text), painted(expected));
    }

    /// Clicks the upload button; `answer` answers the dialog, which is closed if it does not.
    void clickUpload(const std::function<void(QFileDialog*)>& answer)
    {
        QTimer poll;
        connect(&poll, &QTimer::timeout, &poll, [&] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isVisible())
                return;
            poll.stop();
            answer(dialog);
            if (dialog->isVisible())
                dialog->reject();
        });
        poll.start(10);
        QTest::mouseClick(uploadButton(), Qt::LeftButton);
    }

    QString titleOfTheUploadDialog()
    {
        QString title;
        clickUpload([&title](const QFileDialog* dialog) { title = dialog->windowTitle(); });
        return title;
    }

    static void bothStyles()
    {
        QTest::addColumn<bool>("ofText");
        QTest::newRow("picture") << false;
        QTest::newRow("text") << true;
    }

    /// Differs from the default record in every field but one.
    LogoChartData otherRecord() const
    {
        LogoChartData data;
        data.showLogo = false;
        data.pictureLogo = false;
        data.textLogo = true;
        data.logoText = QString::fromUtf8("屏幕 \u00e9").toStdString();
        data.textSize = 31;
        data.textColor = {255, 0, 10, 255};
        data.scale = 37;
        data.picturePath = picturePath().toStdString();
        data.displayPosition = 3;
        data.offsetX = 0;
        data.offsetY = 22;
        data.opacity = 63;
        return data;
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_home.isValid());
        qputenv("HOME", m_home.path().toUtf8());
        for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
            qunsetenv(name);
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_home.filePath("settings"));
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        QVERIFY(picture({40, 30}, Qt::red).save(picturePath()));
        QVERIFY(picture({60, 20}, Qt::blue).save(m_home.filePath("other.png")));
    }

    void init()
    {
        TestCase::init();
        // Without a window manager the focus is asked for windows that are not there yet, or no longer.
        log().allowWarning(QStringLiteral("^QXcbConnection: XCB error: 8 \\(BadMatch\\).*SetInputFocus"));
        m_window = std::make_unique<QWidget>();
        m_panel = new LogoSettingBox;
        m_stack = new QStackedWidget;
        m_picture = new PaintPicLogoWidget;
        m_text = new PaintTextLogoWidget;
        m_elsewhere = new QLineEdit;
        m_stack->addWidget(m_picture);
        m_stack->addWidget(m_text);
        m_stack->setFixedSize(logoChart);
        m_text->resize(logoChart);
        auto* column = new QVBoxLayout(m_window.get());
        column->addWidget(m_panel);
        column->addWidget(m_elsewhere);
        column->addWidget(m_stack);
        m_panel->setLogoStack(m_stack);
        m_panel->setPicLogoWidget(m_picture);
        m_panel->setTextLogoWidget(m_text);
        m_picture->setPicPath(picturePath().toStdString());
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        m_elsewhere->setFocus();
    }

    void cleanup()
    {
        TranslateManager1::instance().switchLanguage(QString());
        m_window.reset();
        TestCase::cleanup();
    }

    void panel()
    {
        QCOMPARE(m_panel->objectName(), QStringLiteral("logosettingbox"));
        QCOMPARE(m_panel->minimumWidth(), 410);
        QCOMPARE(m_panel->maximumWidth(), 410);
        QCOMPARE(m_panel->layout()->contentsMargins(), QMargins(10, 0, 10, 7));
        QCOMPARE(m_panel->styleSheet(),
                 QStringLiteral("QWidget#logosettingbox{border-left : 1px solid #535465; border-right : 1px "
                                "solid #535465;}"));
        QCOMPARE(pages()->minimumWidth(), 410);
        QCOMPARE(pages()->maximumWidth(), 410);
        QCOMPARE(pages()->count(), 2);
        QCOMPARE(pages()->currentIndex(), 0);
        QCOMPARE(pages()->widget(0)->objectName(), QStringLiteral("piclogoTmpWidget"));
        QCOMPARE(pages()->widget(1)->objectName(), QStringLiteral("logoTmpWidget"));

        const auto* line = m_panel->findChild<QFrame*>("logoLine");
        QVERIFY(line);
        QCOMPARE(line->frameStyle(), 4);
        QCOMPARE(line->size(), QSize(353, 1));
        QVERIFY(qAbs(line->geometry().center().x() - 205) <= 1);
    }

    void captions_data()
    {
        QTest::addColumn<QSize>("size");
        for (const char* source :
             {"Show Logo", "Logo Style", "UpLogo", "Scale Logo", "Text Logo", "Text Size", "Color",
              "Display Position", "Position adjustment", "Opacity"})
            QTest::newRow(source) << QSize(80, 24);
        QTest::newRow("X") << QSize(12, 24);
        QTest::newRow("Y") << QSize(12, 24);
    }

    void captions()
    {
        QFETCH(QSize, size);
        const QLabel* label = caption(m_panel, QTest::currentDataTag());
        QVERIFY(label);
        QCOMPARE(label->size(), size);
        QCOMPARE(label->alignment(), Qt::AlignRight | Qt::AlignVCenter);
    }

    void hint()
    {
        const auto* hint = pages()->widget(0)->findChild<QLabel*>("_suggestLabel");
        QVERIFY(hint);
        QCOMPARE(wholeText(hint), QStringLiteral("SuggestTransparentbackgroundrecommended"));
        QCOMPARE(hint->width(), 200);
        QVERIFY(hint->alignment() & Qt::AlignLeft);
        QList<QSize> small;
        QImage shown;
        for (const QLabel* label : pages()->widget(0)->findChildren<QLabel*>()) {
            if (label->height() == 12)
                small.append(label->size());
            if (label->size() == QSize(12, 12))
                shown = label->pixmap(Qt::ReturnByValue).toImage();
        }
        QCOMPARE(small, QList<QSize>({QSize(88, 12), QSize(12, 12)}));
        VD_COMPARE_IMAGES(shown, QImage(":/resources/images/suggest.png"));
    }

    void controls_data()
    {
        QTest::addColumn<int>("control");
        QTest::addColumn<QSize>("size");
        const QSize entry(70, 24);
        const QSize slider(146, 24);
        const QSize reset(20, 20);
        const QList<QPair<const char*, QSize>> controls = {{"picture radio", {115, 24}},
                                                           {"text radio", {115, 24}},
                                                           {"upload", {120, 24}},
                                                           {"scale slider", slider},
                                                           {"scale", entry},
                                                           {"scale reset", reset},
                                                           {"text", {266, 24}},
                                                           {"text size", entry},
                                                           {"colour", {16, 16}},
                                                           {"position", {110, 24}},
                                                           {"X", entry},
                                                           {"Y", entry},
                                                           {"opacity slider", slider},
                                                           {"opacity", entry},
                                                           {"opacity reset", reset}};
        for (int i = 0; i < controls.size(); ++i)
            QTest::newRow(controls.at(i).first) << i << controls.at(i).second;
    }

    void controls()
    {
        QFETCH(int, control);
        QFETCH(QSize, size);
        const QWidget* input = inputsButShow().at(control);
        QVERIFY(input);
        QCOMPARE(input->minimumSize(), size);
        QCOMPARE(input->maximumSize(), size);
        QVERIFY(input->isEnabled());
    }

    /// In a font in which the text takes nearly all of the button's width, and in a larger one.
    void radioTexts()
    {
        QRadioButton* const picture = radio(false);
        const QString text = QStringLiteral("Picture Logo");
        QFont font = picture->font();
        const auto width = [&] { return QFontMetrics(font).boundingRect(text).width(); };
        for (int pixels = 8; width() < 100; ++pixels)
            font.setPixelSize(pixels);
        QVERIFY(width() <= 113);
        picture->setFont(font);
        m_panel->retranslate();
        QCOMPARE(picture->text(), text);
        while (width() <= 113)
            font.setPixelSize(font.pixelSize() + 1);
        picture->setFont(font);
        m_panel->retranslate();
        QVERIFY2(picture->text().endsWith(QChar(0x2026)), qPrintable(picture->text()));
        QCOMPARE(picture->toolTip(), text);
    }

    void properties()
    {
        QCOMPARE(showButton()->property("switchStyle").toString(), QStringLiteral("general"));
        QCOMPARE(showButton()->size(), QSize(28, 14));
        QVERIFY(showButton()->isCheckable() && showButton()->isChecked());
        QCOMPARE(colorButton()->property("btnProperty").toString(), QStringLiteral("logo"));
        QCOMPARE(uploadButton()->text(), QStringLiteral("Upload your logo"));
        QCOMPARE(radio(false)->text(), QStringLiteral("Picture Logo"));
        QCOMPARE(radio(true)->text(), QStringLiteral("Text Logo"));
        QVERIFY(radio(false)->isChecked() && !radio(true)->isChecked());
        QCOMPARE(textSize()->suffix(), QStringLiteral("px"));
        QStringList items;
        for (int i = 0; i < position()->count(); ++i) {
            items.append(position()->itemText(i));
            QCOMPARE(position()->itemData(i).toInt(), i);
        }
        QCOMPARE(items, QStringList({"Center", "Left Up", "Left Down", "Right Up", "Right Down"}));
        QCOMPARE(position()->currentIndex(), 0);
    }

    void spacingOfTheColorRow()
    {
        showTextPage();
        const QRect label = caption(m_panel, "Color")->geometry();
        QCOMPARE(label.left() - textSize()->geometry().right() - 1, 12);
        QCOMPARE(colorButton()->geometry().left() - label.right() - 1, 7);
    }

    void spacingOfTheRows()
    {
        for (const QWidget* control : QList<QWidget*>({showButton(), position(), scaleSlider(), moveX()})) {
            QLabel* label = nullptr;
            for (QLabel* each : m_panel->findChildren<QLabel*>())
                label = each->buddy() == control ? each : label;
            QVERIFY(label);
            QCOMPARE(control->geometry().left() - label->geometry().right() - 1, 8);
        }
    }

    void ranges()
    {
        for (const QSlider* slider : {scaleSlider(), opacitySlider()}) {
            QCOMPARE(slider->orientation(), Qt::Horizontal);
            QCOMPARE(slider->pageStep(), 0);
            QCOMPARE(slider->minimum(), 0);
            QCOMPARE(slider->value(), 100);
        }
        QCOMPARE(scaleSlider()->maximum(), 200);
        QCOMPARE(opacitySlider()->maximum(), 100);
        const auto range = [](const SpinEditBox* box) {
            return QList<double>({box->minimum(), box->maximum(), box->value()});
        };
        QCOMPARE(range(scaleEntry()), QList<double>({0, 200, 100}));
        QCOMPARE(range(opacityEntry()), QList<double>({0, 100, 100}));
        QCOMPARE(range(textSize()), QList<double>({0, 100, 100}));
        QCOMPARE(range(moveX()), QList<double>({0, 16384, 0}));
        QCOMPARE(range(moveY()), QList<double>({0, 16384, 0}));
        QCOMPARE(text()->text(), QStringLiteral("Vardeno RT5 Pro"));
    }

    void startsWithTheDefaultPicture()
    {
        LogoSettingBox panel;
        PaintPicLogoWidget layer;
        panel.setPicLogoWidget(&layer);
        QVERIFY(layer.showsDefaultPicLogo());
        QCOMPARE(panel.getData().picturePath, std::string());
    }

    void switchedOffAndOn_data() { bothStyles(); }

    void switchedOffAndOn()
    {
        QFETCH(bool, ofText);
        if (ofText)
            showTextPage();
        m_panel->setTextLogoColor(QColor(10, 200, 30));
        QWidget* const current = m_stack->currentWidget();
        QVERIFY(current->isVisible());
        QSignalSpy changes(m_panel, &LogoSettingBox::logoSignal);
        QTest::mouseClick(showButton(), Qt::LeftButton);
        QCOMPARE(changes.count(), 1);
        QVERIFY(!m_picture->isVisible() && !m_text->isVisible());
        VD_COMPARE_IMAGES(icon(colorButton()), disabledLogoSwatch());
        QCOMPARE(colorButton()->iconSize(), QSize(40, 20));
        for (const QWidget* input : inputsButShow())
            QVERIFY(!input->isEnabled());
        QVERIFY(showButton()->isEnabled());
        QVERIFY(!m_panel->getData().showLogo);

        QTest::mouseClick(showButton(), Qt::LeftButton);
        QCOMPARE(changes.count(), 2);
        QCOMPARE(m_picture->isVisible(), !ofText);
        QCOMPARE(m_text->isVisible(), ofText);
        VD_COMPARE_IMAGES(icon(colorButton()), logoSwatch(QColor(10, 200, 30)));
        for (const QWidget* input : inputsButShow())
            QVERIFY(input->isEnabled());
        QVERIFY(m_panel->getData().showLogo);
    }

    void styles()
    {
        QSignalSpy changes(m_panel, &LogoSettingBox::logoSignal);
        QSignalSpy forwarded(m_panel, &SettingPanel::changed);
        showTextPage();
        QVERIFY(changes.count() >= 1);
        QCOMPARE(forwarded.count(), changes.count());
        QCOMPARE(pages()->currentIndex(), 1);
        QCOMPARE(m_stack->currentIndex(), 1);
        QVERIFY(!m_picture->isVisible() && m_text->isVisible());
        QVERIFY(m_panel->getData().textLogo && !m_panel->getData().pictureLogo);

        changes.clear();
        showPicturePage();
        QVERIFY(changes.count() >= 1);
        QCOMPARE(pages()->currentIndex(), 0);
        QCOMPARE(m_stack->currentIndex(), 0);
        QVERIFY(m_picture->isVisible() && !m_text->isVisible());
        QVERIFY(!m_panel->getData().textLogo && m_panel->getData().pictureLogo);
    }

    void pageSwitchBringsShiftAndOpacity()
    {
        m_panel->setData(LogoChartData());
        m_picture->setPicPath(picturePath().toStdString());
        position()->setCurrentIndex(1);
        enter(moveX(), QStringLiteral("31"));
        enter(moveY(), QStringLiteral("12"));
        enter(opacityEntry(), QStringLiteral("40"));
        comparePicture([](PaintPicLogoWidget& layer) {
            layer.setPosition(1);
            layer.setMoveX(31);
            layer.setMoveY(12);
            layer.setOpacity(40);
        });
        const auto ofRecord = [](PaintTextLogoWidget& layer) {
            layer.setText(QStringLiteral("Vardeno RT5 Pro"));
            layer.setTextColor(QColor(0, 0, 100));
            layer.setPosition(1);
        };
        compareText(ofRecord);

        showTextPage();
        compareText([&](PaintTextLogoWidget& layer) {
            ofRecord(layer);
            layer.setMoveX(31);
            layer.setMoveY(12);
            layer.setOpacity(40);
        });

        enter(moveX(), QStringLiteral("5"));
        enter(opacityEntry(), QStringLiteral("70"));
        comparePicture([](PaintPicLogoWidget& layer) {
            layer.setPosition(1);
            layer.setMoveX(31);
            layer.setMoveY(12);
            layer.setOpacity(40);
        });
        showPicturePage();
        comparePicture([](PaintPicLogoWidget& layer) {
            layer.setPosition(1);
            layer.setMoveX(5);
            layer.setMoveY(12);
            layer.setOpacity(70);
        });
    }

    void anchors_data() { bothStyles(); }

    void anchors()
    {
        QFETCH(bool, ofText);
        if (ofText)
            showTextPage();
        position()->setFocus();
        for (int anchor = 1; anchor <= 4; ++anchor) {
            QSignalSpy changes(m_panel, &LogoSettingBox::logoSignal);
            QTest::keyClick(position(), Qt::Key_Down);
            QCOMPARE(position()->currentIndex(), anchor);
            QCOMPARE(m_panel->getData().displayPosition, anchor);
            QCOMPARE(changes.count(), 1);
            comparePicture([&](PaintPicLogoWidget& layer) { layer.setPosition(anchor); });
            compareText([&](PaintTextLogoWidget& layer) { layer.setPosition(anchor); });
        }
    }

    void newAnchorStartsWithoutShift_data() { bothStyles(); }

    /// Shift first, anchor then: no painter ever shows the new anchor with the old shift.
    void newAnchorStartsWithoutShift()
    {
        QFETCH(bool, ofText);
        if (ofText)
            showTextPage();
        position()->setCurrentIndex(1);
        enter(moveX(), QStringLiteral("30"));
        enter(moveY(), QStringLiteral("20"));
        struct Step
        {
            QPoint shift;
            QImage shown;
        };
        QVector<Step> steps;
        const auto look = [&] {
            steps.append(
                {QPoint(int(moveX()->value()), int(moveY()->value())), painted(*m_stack->currentWidget())});
        };
        const auto expected = [&](int anchor, const QPoint& shift) {
            PaintPicLogoWidget picture;
            PaintTextLogoWidget text;
            picture.resize(logoChart);
            text.resize(logoChart);
            picture.setPicPath(picturePath().toStdString());
            picture.setPosition(anchor);
            picture.setMoveX(shift.x());
            picture.setMoveY(shift.y());
            text.setPosition(anchor);
            text.setMoveX(shift.x());
            text.setMoveY(shift.y());
            return ofText ? painted(text) : painted(picture);
        };
        connect(m_panel, &LogoSettingBox::logoSignal, m_stack, look);
        position()->setFocus();
        QTest::keyClick(position(), Qt::Key_Down);

        QCOMPARE(steps.size(), 3);
        QCOMPARE(steps.at(0).shift, QPoint(0, 20));
        VD_COMPARE_IMAGES(steps.at(0).shown, expected(1, {0, 20}));
        QCOMPARE(steps.at(1).shift, QPoint(0, 0));
        VD_COMPARE_IMAGES(steps.at(1).shown, expected(1, {0, 0}));
        QCOMPARE(steps.at(2).shift, QPoint(0, 0));
        VD_COMPARE_IMAGES(steps.at(2).shown, expected(2, {0, 0}));
    }

    void unknownAnchorOnlyTells()
    {
        position()->setCurrentIndex(4);
        position()->addItem(QStringLiteral("Elsewhere"), 5);
        enter(moveX(), QStringLiteral("3"));
        QSignalSpy changes(m_panel, &LogoSettingBox::logoSignal);
        position()->setCurrentIndex(5);
        QVERIFY(changes.count() >= 1);
        QCOMPARE(moveX()->value(), 0.0);
        comparePicture([](PaintPicLogoWidget& layer) { layer.setPosition(4); });
        compareText([](PaintTextLogoWidget& layer) { layer.setPosition(4); });
    }

    void wheelNeedsTheFocus()
    {
        const auto turn = [this] {
            const QPoint at = position()->rect().center();
            QWheelEvent wheel(at, position()->mapToGlobal(at), QPoint(), QPoint(0, -120), Qt::NoButton,
                              Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(position(), &wheel);
        };
        turn();
        QCOMPARE(position()->currentIndex(), 0);
        position()->setFocus();
        turn();
        QCOMPARE(position()->currentIndex(), 1);
    }

    void shifts_data()
    {
        QTest::addColumn<bool>("ofText");
        QTest::addColumn<bool>("vertical");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("pixels");
        QTest::newRow("picture, X") << false << false << QStringLiteral("31") << 31;
        QTest::newRow("picture, Y") << false << true << QStringLiteral("31") << 31;
        QTest::newRow("text, X") << true << false << QStringLiteral("31") << 31;
        QTest::newRow("text, Y") << true << true << QStringLiteral("31") << 31;
        QTest::newRow("truncated") << false << false << QStringLiteral("12.9") << 12;
        QTest::newRow("largest") << false << true << QStringLiteral("16384") << 16384;
    }

    void shifts()
    {
        QFETCH(bool, ofText);
        QFETCH(bool, vertical);
        QFETCH(QString, typed);
        QFETCH(int, pixels);
        if (ofText)
            showTextPage();
        QSignalSpy changes(m_panel, &LogoSettingBox::logoSignal);
        enter(vertical ? moveY() : moveX(), typed);
        QCOMPARE(changes.count(), 1);
        QCOMPARE(m_panel->getData().offsetX, vertical ? 0 : pixels);
        QCOMPARE(m_panel->getData().offsetY, vertical ? pixels : 0);
        comparePicture([&](PaintPicLogoWidget& layer) {
            layer.setMoveX(!ofText && !vertical ? pixels : 0);
            layer.setMoveY(!ofText && vertical ? pixels : 0);
        });
        compareText([&](PaintTextLogoWidget& layer) {
            layer.setMoveX(ofText && !vertical ? pixels : 0);
            layer.setMoveY(ofText && vertical ? pixels : 0);
        });
    }

    void scaleTyped_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("percent");
        QTest::newRow("half") << QStringLiteral("50") << 50;
        QTest::newRow("nothing") << QStringLiteral("0") << 0;
        QTest::newRow("most") << QStringLiteral("200") << 200;
        QTest::newRow("truncated") << QStringLiteral("29.9") << 29;
    }

    void scaleTyped()
    {
        QFETCH(QString, typed);
        QFETCH(int, percent);
        QSignalSpy changes(m_panel, &LogoSettingBox::logoSignal);
        enter(scaleEntry(), typed);
        QVERIFY(changes.count() >= 1);
        QCOMPARE(scaleSlider()->value(), percent);
        QCOMPARE(m_panel->getData().scale, percent);
        comparePicture([&](PaintPicLogoWidget& layer) { layer.setScale(percent); });
    }

    void scaleDragged()
    {
        QSignalSpy changes(m_panel, &LogoSettingBox::logoSignal);
        QList<int> values;
        drag(scaleSlider(), [&] {
            values.append(scaleSlider()->value());
            QCOMPARE(scaleEntry()->value(), double(scaleSlider()->value()));
            QCOMPARE(changes.count(), 0);
            comparePicture([](PaintPicLogoWidget&) {});
        });
        QCOMPARE(values.size(), 3);
        QVERIFY(values.at(0) < 100 && values.at(1) < values.at(0) && values.at(2) < values.at(1));
        QCOMPARE(changes.count(), 1);
        QCOMPARE(scaleEntry()->value(), double(values.last()));
        comparePicture([&](PaintPicLogoWidget& layer) { layer.setScale(values.last()); });
    }

    void scaleByKey()
    {
        QSignalSpy changes(m_panel, &LogoSettingBox::logoSignal);
        scaleSlider()->setFocus();
        QTest::keyClick(scaleSlider(), Qt::Key_Right);
        QCOMPARE(scaleSlider()->value(), 101);
        QCOMPARE(scaleEntry()->value(), 101.0);
        QCOMPARE(changes.count(), 1);
        comparePicture([](PaintPicLogoWidget& layer) { layer.setScale(101); });
    }

    void opacityTyped_data() { bothStyles(); }

    void opacityTyped()
    {
        QFETCH(bool, ofText);
        if (ofText)
            showTextPage();
        for (const int percent : {50, 0, 1, 99}) {
            QSignalSpy changes(m_panel, &LogoSettingBox::logoSignal);
            enter(opacityEntry(), QString::number(percent));
            QVERIFY(changes.count() >= 1);
            QCOMPARE(opacitySlider()->value(), percent);
            QCOMPARE(m_panel->getData().opacity, percent);
            comparePicture([&](PaintPicLogoWidget& layer) { layer.setOpacity(ofText ? 100 : percent); });
            compareText([&](PaintTextLogoWidget& layer) { layer.setOpacity(ofText ? percent : 100); });
        }
    }

    void opacityDragged_data() { bothStyles(); }

    void opacityDragged()
    {
        QFETCH(bool, ofText);
        if (ofText)
            showTextPage();
        QSignalSpy changes(m_panel, &LogoSettingBox::logoSignal);
        int last = 100;
        drag(opacitySlider(), [&] {
            QVERIFY(opacitySlider()->value() < last);
            last = opacitySlider()->value();
            QCOMPARE(opacityEntry()->value(), double(last));
            QCOMPARE(changes.count(), 0);
            comparePicture([](PaintPicLogoWidget&) {});
            compareText([](PaintTextLogoWidget&) {});
        });
        QCOMPARE(changes.count(), 1);
        comparePicture([&](PaintPicLogoWidget& layer) { layer.setOpacity(ofText ? 100 : last); });
        compareText([&](PaintTextLogoWidget& layer) { layer.setOpacity(ofText ? last : 100); });
    }

    void opacityByKey()
    {
        opacitySlider()->setFocus();
        QTest::keyClick(opacitySlider(), Qt::Key_Left);
        QCOMPARE(opacityEntry()->value(), 99.0);
        comparePicture([](PaintPicLogoWidget& layer) { layer.setOpacity(99); });
    }

    void scaleResets()
    {
        enter(scaleEntry(), QStringLiteral("37"));
        QSignalSpy changes(m_panel, &LogoSettingBox::logoSignal);
        QTest::mouseClick(scaleReset(), Qt::LeftButton);
        QVERIFY(changes.count() >= 1);
        QCOMPARE(scaleEntry()->value(), 100.0);
        QCOMPARE(scaleSlider()->value(), 100);
        comparePicture([](PaintPicLogoWidget&) {});
    }

    void scaleResetOnTheTextPage()
    {
        enter(scaleEntry(), QStringLiteral("37"));
        showTextPage();
        enter(textSize(), QStringLiteral("20"));
        QSignalSpy changes(m_panel, &LogoSettingBox::logoSignal);
        scaleReset()->click(); // not in sight on this page
        QVERIFY(changes.count() >= 1);
        QCOMPARE(textSize()->value(), 100.0);
        QCOMPARE(scaleEntry()->value(), 37.0);
        compareText([](PaintTextLogoWidget&) {});
        comparePicture([](PaintPicLogoWidget& layer) { layer.setScale(37); });
    }

    void opacityResets_data() { bothStyles(); }

    void opacityResets()
    {
        QFETCH(bool, ofText);
        if (ofText)
            showTextPage();
        enter(opacityEntry(), QStringLiteral("37"));
        QSignalSpy changes(m_panel, &LogoSettingBox::logoSignal);
        QTest::mouseClick(opacityReset(), Qt::LeftButton);
        QVERIFY(changes.count() >= 1);
        QCOMPARE(opacityEntry()->value(), 100.0);
        QCOMPARE(opacitySlider()->value(), 100);
        comparePicture([](PaintPicLogoWidget&) {});
        compareText([](PaintTextLogoWidget&) {});
    }

    void everyKeyReachesTheTextLayer()
    {
        showTextPage();
        QSignalSpy changes(m_panel, &LogoSettingBox::logoSignal);
        type(text(), QStringLiteral("RT"));
        QCOMPARE(changes.count(), 3);
        compareText([](PaintTextLogoWidget& layer) { layer.setText(QStringLiteral("RT")); });
        QCOMPARE(m_panel->getData().logoText, std::string("RT"));
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
        showTextPage();
        type(text(), QStringLiteral("wall"));
        m_elsewhere->setFocus();
        type(text(), QString());
        QCOMPARE(text()->text(), QString());
        compareText([](PaintTextLogoWidget& layer) { layer.setText(QString()); });
        byEnter ? QTest::keyClick(text(), Qt::Key_Return) : m_elsewhere->setFocus();
        QCOMPARE(text()->text(), QStringLiteral("wall"));
        compareText([](PaintTextLogoWidget& layer) { layer.setText(QStringLiteral("wall")); });
    }

    void emptyTextLeftByAPageSwitch()
    {
        showTextPage();
        type(text(), QString());
        showPicturePage();
        QCOMPARE(text()->text(), QStringLiteral("Vardeno RT5 Pro"));
    }

    void lockIsNoEndOfAnEdit()
    {
        showTextPage();
        type(text(), QString());
        m_panel->setControlsDisabled(true);
        QCOMPARE(text()->text(), QString());
        m_panel->setControlsDisabled(false);
        QCOMPARE(text()->text(), QString());

        // Leaving it afterwards is.
        QTest::mouseClick(text(), Qt::LeftButton);
        QVERIFY(text()->hasFocus());
        m_elsewhere->setFocus();
        QCOMPARE(text()->text(), QStringLiteral("Vardeno RT5 Pro"));
    }

    void textSizeTyped_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("pixels");
        QTest::newRow("smaller") << QStringLiteral("20") << 20;
        QTest::newRow("none") << QStringLiteral("0") << 0;
        QTest::newRow("truncated") << QStringLiteral("31.9") << 31;
    }

    void textSizeTyped()
    {
        QFETCH(QString, typed);
        QFETCH(int, pixels);
        showTextPage();
        QSignalSpy changes(m_panel, &LogoSettingBox::logoSignal);
        enter(textSize(), typed);
        QCOMPARE(changes.count(), 1);
        QCOMPARE(m_panel->getData().textSize, pixels);
        compareText([&](PaintTextLogoWidget& layer) { layer.setTextSize(pixels); });
    }

    void invalidEntriesGoBack_data()
    {
        QTest::addColumn<int>("control");
        QTest::addColumn<QString>("typed");
        const QList<QPair<const char*, int>> entries = {
            {"scale", 4}, {"text size", 7}, {"X", 10}, {"Y", 11}, {"opacity", 13}};
        for (const auto& entry : entries) {
            for (const char* typed : {"", "-1", "16385", "x"})
                QTest::newRow(qPrintable(QStringLiteral("%1, \"%2\"").arg(entry.first, typed)))
                    << entry.second << QString::fromLatin1(typed);
        }
    }

    void invalidEntriesGoBack()
    {
        QFETCH(int, control);
        QFETCH(QString, typed);
        auto* const entry = qobject_cast<SpinEditBox*>(inputsButShow().at(control));
        if (entry == textSize())
            showTextPage();
        enter(entry, QStringLiteral("33"));
        QCOMPARE(entry->value(), 33.0);
        QSignalSpy changes(m_panel, &LogoSettingBox::logoSignal);
        type(entry, typed);
        m_elsewhere->setFocus();
        QCOMPARE(entry->value(), 33.0);
        QCOMPARE(entry->cleanText(), QStringLiteral("33"));
        QCOMPARE(changes.count(), 0);
    }

    void color()
    {
        showTextPage();
        m_panel->setTextLogoColor(QColor(1, 2, 3));
        QSignalSpy asked(m_panel, &LogoSettingBox::logoColorSingal);
        QSignalSpy forwarded(m_panel, &SettingPanel::colorRequested);
        QSignalSpy changes(m_panel, &LogoSettingBox::logoSignal);
        QTest::mouseClick(colorButton(), Qt::LeftButton);
        QCOMPARE(asked.count(), 1);
        QCOMPARE(asked.at(0).at(0).value<QPushButton*>(), colorButton());
        QCOMPARE(forwarded.count(), 1);
        QCOMPARE(changes.count(), 0);

        for (const QColor& picked : {QColor(Qt::red), QColor(0, 0, 255, 90)}) {
            m_panel->setTextLogoColor(picked);
            VD_COMPARE_IMAGES(icon(colorButton()), logoSwatch(picked));
            QCOMPARE(m_panel->getData().textColor, toRgbaColor(picked));
            compareText([&](PaintTextLogoWidget& layer) { layer.setTextColor(picked); });
        }
        QCOMPARE(colorButton()->iconSize(), QSize(16, 16));
        QCOMPARE(changes.count(), 2);

        m_panel->restoreTextLogoColor();
        QCOMPARE(changes.count(), 3);
        VD_COMPARE_IMAGES(icon(colorButton()), logoSwatch(QColor(1, 2, 3)));
        compareText([&](PaintTextLogoWidget& layer) { layer.setTextColor(QColor(1, 2, 3)); });
    }

    void uploads()
    {
        QSignalSpy changes(m_panel, &LogoSettingBox::logoSignal);
        clickUpload([this](QFileDialog* dialog) {
            auto* name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            name->setText(m_home.filePath("other.png"));
            auto* buttons = dialog->findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"));
            QTest::mouseClick(buttons->button(QDialogButtonBox::Open), Qt::LeftButton);
        });
        QVERIFY(changes.count() >= 1);
        const QString copy = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) +
                             QLatin1String("/vtestcharttools/logo/other.png");
        QVERIFY(copy.startsWith(m_home.path()));
        QCOMPARE(m_panel->getData().picturePath, copy.toStdString());
        comparePicture([&](PaintPicLogoWidget& layer) { layer.setPicPath(copy.toStdString()); });
    }

    void records_data()
    {
        QTest::addColumn<LogoChartData>("data");
        QTest::newRow("default") << LogoChartData();
        LogoChartData data = otherRecord();
        QTest::newRow("everything else") << data;
        data.showLogo = true;
        QTest::newRow("text logo on") << data;
        data.pictureLogo = true;
        data.textLogo = false;
        QTest::newRow("picture logo on") << data;
        data.showLogo = false;
        QTest::newRow("picture logo off") << data;
        data.logoText.clear();
        data.textSize = 0;
        data.scale = 0;
        data.opacity = 0;
        data.textColor = {0, 0, 0, 0};
        QTest::newRow("smallest") << data;
        data.logoText = std::string(300, 'W');
        data.textSize = 100;
        data.scale = 200;
        data.opacity = 100;
        data.displayPosition = 4;
        data.offsetX = 16384;
        data.offsetY = 16384;
        data.textColor = {255, 255, 255, 255};
        QTest::newRow("largest") << data;
        data.picturePath = m_home.filePath("other.png").toStdString();
        QTest::newRow("another picture") << data;
    }

    void records()
    {
        QFETCH(LogoChartData, data);
        for (const LogoChartData& before : {LogoChartData(), otherRecord()}) {
            m_panel->setData(before);
            m_panel->setData(data);
            QVERIFY(m_panel->getData() == data);
            QCOMPARE(pages()->currentIndex(), data.textLogo ? 1 : 0);
            QCOMPARE(m_stack->currentIndex(), data.textLogo ? 1 : 0);
            QCOMPARE(m_picture->isVisible(), data.showLogo && data.pictureLogo);
            QCOMPARE(m_text->isVisible(), data.showLogo && data.textLogo);
            QCOMPARE(colorButton()->isEnabled(), data.showLogo);
            comparePicture([&](PaintPicLogoWidget& layer) {
                data.picturePath.empty() ? layer.setDefaultPicLogo() : layer.setPicPath(data.picturePath);
                layer.setScale(data.scale);
                layer.setPosition(data.displayPosition);
                layer.setMoveX(data.offsetX);
                layer.setMoveY(data.offsetY);
                layer.setOpacity(data.opacity);
            });
            compareText([&](PaintTextLogoWidget& layer) {
                layer.setText(QString::fromStdString(data.logoText));
                layer.setTextSize(data.textSize);
                layer.setTextColor(toQColor(data.textColor));
                layer.setPosition(data.displayPosition);
                layer.setMoveX(data.offsetX);
                layer.setMoveY(data.offsetY);
                layer.setOpacity(data.opacity);
            });
        }
    }

    void recordOfASwitchedOffLogo()
    {
        m_panel->setData(otherRecord());
        QTest::mouseClick(showButton(), Qt::LeftButton);
        VD_COMPARE_IMAGES(icon(colorButton()), logoSwatch(QColor(255, 0, 10)));
        LogoChartData on = otherRecord();
        on.showLogo = true;
        QVERIFY(m_panel->getData() == on);
        QVERIFY(m_text->isVisible());
    }

    void switchedOffLogoKeepsItsColorInTheRecord()
    {
        LogoChartData data = otherRecord();
        data.showLogo = true;
        m_panel->setData(data);
        QTest::mouseClick(showButton(), Qt::LeftButton);
        data.showLogo = false;
        QVERIFY(m_panel->getData() == data);
    }

    void recordsAreTold()
    {
        QSignalSpy changes(m_panel, &LogoSettingBox::logoSignal);
        m_panel->setData(otherRecord());
        QVERIFY(changes.count() >= 1);
    }

    void defaultPictureIsAnEmptyPath()
    {
        m_picture->setDefaultPicLogo();
        QCOMPARE(m_panel->getData().picturePath, std::string());
        LogoChartData data;
        data.picturePath = picturePath().toStdString();
        m_panel->setData(data);
        QCOMPARE(m_picture->picPath(), picturePath().toStdString());
        QCOMPARE(m_panel->getData().picturePath, data.picturePath);
        m_panel->setData(LogoChartData());
        QVERIFY(m_picture->showsDefaultPicLogo());
        QCOMPARE(m_panel->getData().picturePath, std::string());
    }

    void missingPictureKeepsItsPath()
    {
        LogoChartData data;
        data.picturePath = m_home.filePath("gone.png").toStdString();
        m_panel->setData(data);
        QCOMPARE(m_panel->getData().picturePath, data.picturePath);
        QVERIFY(layerImage(*m_picture).isNull());
    }

    void valuesOutOfRangeAreCut_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("anchor");
        QTest::addColumn<int>("least");
        QTest::newRow("below") << -5 << 0 << 1;
        QTest::newRow("above") << 20000 << 4 << 0;
    }

    void valuesOutOfRangeAreCut()
    {
        QFETCH(int, value);
        QFETCH(int, anchor);
        QFETCH(int, least);
        LogoChartData data = otherRecord();
        data.textSize = data.scale = data.displayPosition = data.offsetX = data.offsetY = data.opacity =
            value;
        m_panel->setData(data);
        const LogoChartData cut = m_panel->getData();
        QCOMPARE(cut.textSize, least ? 0 : 100);
        QCOMPARE(cut.scale, least ? 0 : 200);
        QCOMPARE(cut.opacity, least ? 0 : 100);
        QCOMPARE(cut.offsetX, least ? 0 : 16384);
        QCOMPARE(cut.offsetY, least ? 0 : 16384);
        QCOMPARE(cut.displayPosition, anchor);
        comparePicture([&](PaintPicLogoWidget& layer) {
            layer.setScale(cut.scale);
            layer.setPosition(anchor);
            layer.setMoveX(cut.offsetX);
            layer.setMoveY(cut.offsetY);
            layer.setOpacity(cut.opacity);
        });
    }

    void wholeRecord()
    {
        TestChartToolsData record;
        record.publicData.boxRow = 3;
        m_panel->setData(otherRecord());
        m_panel->collectInto(record);
        QVERIFY(record.logoData == otherRecord());
        QCOMPARE(record.publicData.boxRow, 3);
        record.logoData.opacity = 77;
        m_panel->pushFrom(record);
        QCOMPARE(m_panel->getData().opacity, 77);
    }

    void lock_data()
    {
        QTest::addColumn<bool>("on");
        QTest::newRow("logo on") << true;
        QTest::newRow("logo off") << false;
    }

    void lock()
    {
        QFETCH(bool, on);
        showButton()->setChecked(on);
        showButton()->setFocus();
        m_panel->setControlsDisabled(true);
        QVERIFY(!showButton()->isEnabled());
        for (const QWidget* input : inputsButShow())
            QVERIFY(!input->isEnabled());
        QVERIFY(m_panel->hasFocus());

        m_elsewhere->setFocus();
        m_panel->setControlsDisabled(false);
        QVERIFY(showButton()->isEnabled());
        for (const QWidget* input : inputsButShow())
            QCOMPARE(input->isEnabled(), on);
        QVERIFY(m_elsewhere->hasFocus());
    }

    void switchedDuringALock()
    {
        m_panel->setControlsDisabled(true);
        showButton()->setChecked(false);
        showButton()->setChecked(true);
        for (const QWidget* input : inputsButShow())
            QVERIFY(!input->isEnabled());
    }

    void nullIsIgnored()
    {
        m_panel->setPicLogoWidget(nullptr);
        m_panel->setTextLogoWidget(nullptr);
        m_panel->setLogoStack(nullptr);
        m_panel->setData(otherRecord());
        QCOMPARE(m_stack->currentIndex(), 1);
        QCOMPARE(m_picture->picPath(), picturePath().toStdString());
    }

    void worksWithoutPainters()
    {
        LogoSettingBox panel;
        LogoChartData data = otherRecord();
        panel.setData(data);
        data.picturePath.clear();
        QVERIFY(panel.getData() == data);
        panel.retranslate();
    }

    void handedOverTextLayerIsRendered()
    {
        PaintTextLogoWidget layer;
        layer.resize(logoChart);
        QVERIFY(layerImage(layer).isNull());
        m_panel->setTextLogoWidget(&layer);
        QCOMPARE(layerImage(layer).size(), logoChart);
    }

    void longCaptionsAreElided()
    {
        const QString whole = QStringLiteral("Choose a picture of your own for the logo");
        QVERIFY(speak({{QStringLiteral("Upload your logo"), whole}}));
        m_panel->retranslate();
        QCOMPARE(uploadButton()->toolTip(), whole);
        QCOMPARE(uploadButton()->text(),
                 uploadButton()->fontMetrics().elidedText(whole, Qt::ElideRight, 118));
        QVERIFY(uploadButton()->text() != whole);

        uploadButton()->setProperty("btnProperty", "uplogo"); // leaves room for a picture
        m_panel->retranslate();
        QCOMPARE(uploadButton()->toolTip(), whole);
        QCOMPARE(uploadButton()->text(), uploadButton()->fontMetrics().elidedText(whole, Qt::ElideRight, 52));
        uploadButton()->setProperty("btnProperty", QVariant());

        TranslateManager1::instance().switchLanguage(QString());
        m_panel->retranslate();
        QCOMPARE(uploadButton()->text(), QStringLiteral("Upload your logo"));
        QCOMPARE(uploadButton()->toolTip(), QString());
    }

    void retranslates()
    {
        TranslateManager1& manager = TranslateManager1::instance();
        QVERIFY(manager.translator().load(sourcePath("translations/zh_CN.ts")));
        manager.switchLanguage(QStringLiteral("zh_CN"));
        const ComboBox* const anchors = position();
        m_panel->retranslate();
        QVERIFY(!caption(m_panel, "Display Position"));
        const auto translation = [&](const char* source) {
            return vardeno::trans::translate(manager.translator(), "TestChartTools", "Widget",
                                             QLatin1String(source));
        };
        QVERIFY(translation("Text Logo") != QLatin1String("Text Logo"));
        QCOMPARE(radio(true)->text(), translation("Text Logo"));
        QCOMPARE(anchors->itemText(1), translation("Left Up"));
        QCOMPARE(titleOfTheUploadDialog(), translation("SelectImage"));

        manager.switchLanguage(QString());
        m_panel->retranslate();
        QVERIFY(caption(m_panel, "Display Position"));
        QCOMPARE(titleOfTheUploadDialog(), QStringLiteral("SelectImage"));
    }
};

VD_TEST_MAIN(TestLogoSettingBox)
#include "tst_logosettingbox.moc"
