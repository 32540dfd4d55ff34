#include "charttool.h"
#include "language.h"

#include <chartpreview.h>

#include <QComboBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QSlider>
#include <QToolButton>

using namespace charttool;

namespace {

/// A tool that fills its window.
struct FollowingTool
{
    explicit FollowingTool(const QSize& size)
        : tool(new VTestChartTools(&window))
        , user(*tool)
    {
        window.setCentralWidget(tool);
        tool->setFollowsHost(true);
        tool->setZoomablePreview(true);
        tool->applyRecord(smallRecord());
        window.resize(size);
    }

    ChartPreview* preview() const { return tool->preview(); }

    QMainWindow window;
    VTestChartTools* tool;
    User user;
};

QString toldWithSize(const QWidget* widget)
{
    return QStringLiteral("%1 %2 \"%3\" %4x%5")
        .arg(QLatin1String(widget->metaObject()->className()), widget->objectName(), widget->accessibleName())
        .arg(widget->width())
        .arg(widget->height());
}

/// The widgets of a panel that show or take something.
QVector<QWidget*> partsOf(const QWidget* panel)
{
    QVector<QWidget*> parts;
    for (auto* part : panel->findChildren<QWidget*>()) {
        const bool isInner = qobject_cast<QAbstractSpinBox*>(part->parentWidget()) ||
                             qobject_cast<QComboBox*>(part->parentWidget());
        if (!isInner && (qobject_cast<QLabel*>(part) || qobject_cast<QAbstractButton*>(part) ||
                         qobject_cast<QAbstractSpinBox*>(part) || qobject_cast<QComboBox*>(part) ||
                         qobject_cast<QSlider*>(part) || qobject_cast<QLineEdit*>(part)))
            parts.append(part);
    }
    return parts;
}

QString textOf(const QWidget* part)
{
    if (const auto* label = qobject_cast<const QLabel*>(part))
        return label->text();
    const auto* button = qobject_cast<const QAbstractButton*>(part);
    return button ? button->text() : QString();
}

/// Whether what `part` shows is cut.
bool isCut(const QWidget* part)
{
    const QFontMetrics metrics = part->fontMetrics();
    const QString text = textOf(part);
    const bool isElided = qobject_cast<const QLabel*>(part) && text.contains(QChar(0x2026));
    if (!text.isEmpty() &&
        (isElided || metrics.horizontalAdvance(text) > part->width() || metrics.height() > part->height()))
        return true;
    if (const auto* entry = qobject_cast<const SpinEditBox*>(part)) {
        const auto* inner = entry->findChild<QLineEdit*>();
        const QString longest = entry->prefix() + entry->textFromValue(entry->maximum()) + entry->suffix();
        return metrics.horizontalAdvance(longest) > inner->width() || metrics.height() > entry->height();
    }
    if (const auto* box = qobject_cast<const QComboBox*>(part))
        return metrics.horizontalAdvance(box->currentText()) + 24 > box->width() ||
               metrics.height() > box->height();
    return false;
}

/// Where the widest row of the column ends.
int rightmost(const FollowingTool& shown)
{
    int right = 0;
    for (const SettingPanel* panel : shown.user.panels()) {
        for (const QWidget* part : partsOf(panel)) {
            if (part->isVisible())
                right = std::max(right, part->mapTo(shown.user.settings(), part->rect().bottomRight()).x());
        }
    }
    return right;
}

/// What is wrong in the column, empty for nothing.
QStringList faults(const FollowingTool& shown)
{
    QStringList found;
    const QWidget* content = shown.user.settings()->widget();
    for (const SettingPanel* panel : shown.user.panels()) {
        const QVector<QWidget*> parts = partsOf(panel);
        for (int i = 0; i < parts.size(); ++i) {
            if (!parts[i]->isVisible())
                continue;
            const QRect place(parts[i]->mapTo(content, QPoint()), parts[i]->size());
            if (isCut(parts[i]))
                found.append(QStringLiteral("cut: ") + toldWithSize(parts[i]) + textOf(parts[i]));
            if (!content->rect().contains(place))
                found.append(QStringLiteral("outside: ") + toldWithSize(parts[i]));
            for (int j = 0; j < i; ++j) {
                const QRect other(parts[j]->mapTo(content, QPoint()), parts[j]->size());
                if (parts[j]->isVisible() && place.intersects(other))
                    found.append(QStringLiteral("over another: ") + toldWithSize(parts[i]) +
                                 toldWithSize(parts[j]));
            }
        }
    }
    return found;
}

} // namespace

class TestFollowsHost : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        log().allowWarning(QStringLiteral("^This plugin does not support"));
        m_font = QApplication::font();
    }
    void cleanup()
    {
        QApplication::setFont(m_font);
        TranslateManager1::instance().switchLanguage(QString());
        TestCase::cleanup();
    }

    void offAtFirst()
    {
        VTestChartTools tool;
        QVERIFY(!tool.followsHost());
        QCOMPARE(tool.minimumSize(), QSize(1610, 803));
        QCOMPARE(tool.maximumSize(), QSize(1610, 803));
    }

    void sizes_data()
    {
        QTest::addColumn<QSize>("size");
        for (const QSize& size :
             {QSize(1024, 600), QSize(1366, 768), QSize(1920, 1080), QSize(3840, 2160), QSize(7680, 4320)})
            QTest::newRow(qPrintable(QStringLiteral("%1 x %2").arg(size.width()).arg(size.height()))) << size;
    }
    /// The preview has the room that the settings leave; they keep to their content.
    void sizes()
    {
        QFETCH(QSize, size);
        FollowingTool shown(size);
        QVERIFY(shown.user.show());
        shown.window.resize(size);
        QTRY_COMPARE(shown.tool->size(), size);
        QTRY_COMPARE(shown.preview()->width() + shown.user.settings()->width(), size.width());
        QCOMPARE(shown.user.settings()->height(), size.height());
        QVERIFY(shown.user.settings()->width() - rightmost(shown) < 24);
        QVERIFY(shown.preview()->height() > size.height() - 50);
        const QSize chart = shown.user.preview()->size();
        QVERIFY(chart.width() > shown.preview()->width() - 6 ||
                chart.height() > shown.preview()->height() - 6);
        QCOMPARE(qRound(chart.width() * 9 / 160.0), qRound(chart.height() / 10.0));
    }

    void nothingIsCut_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<int>("pixels");
        for (const char* language : {"en", "de", "es", "ja", "zh_CN"}) {
            for (const int pixels : {12, 20, 32})
                QTest::newRow(qPrintable(QStringLiteral("%1, %2").arg(language).arg(pixels)))
                    << QString(language) << pixels;
        }
    }
    void nothingIsCut()
    {
        QFETCH(QString, language);
        QFETCH(int, pixels);
        QFont font = m_font;
        font.setPixelSize(pixels);
        QApplication::setFont(font);
        FollowingTool shown({1920, 1080});
        shown.tool->loadLanguageFiles(
            {sourcePath(qPrintable(QStringLiteral("translations/%1.ts").arg(language)))});
        shown.tool->switchLanguage(language);
        QVERIFY(shown.user.show());
        QTRY_VERIFY2(faults(shown).isEmpty(), qPrintable(faults(shown).join(QLatin1Char('\n'))));
        for (QAbstractButton* button : {shown.user.cancel(), shown.user.replaceApply()})
            QVERIFY2(!isCut(button), qPrintable(toldWithSize(button)));
    }

    /// Also in the other pages of the panels.
    void theColorBarAndTheTextLogo()
    {
        QFont font = m_font;
        font.setPixelSize(28);
        QApplication::setFont(font);
        FollowingTool shown({1920, 1080});
        TestChartToolsData record = smallRecord();
        record.basicData.chessChecked = false;
        record.basicData.colorBarChecked = true;
        record.logoData.pictureLogo = false;
        record.logoData.textLogo = true;
        shown.tool->applyRecord(record);
        QVERIFY(shown.user.show());
        QTRY_VERIFY2(faults(shown).isEmpty(), qPrintable(faults(shown).join(QLatin1Char('\n'))));
    }

    /// Settings that are wider than the window can be scrolled to.
    void aSmallWindowAndALargeFont()
    {
        QFont font = m_font;
        font.setPixelSize(32);
        QApplication::setFont(font);
        FollowingTool shown({1024, 600});
        QVERIFY(shown.user.show());
        QVERIFY(shown.preview()->width() >= 240);
        QTRY_VERIFY2(faults(shown).isEmpty(), qPrintable(faults(shown).join(QLatin1Char('\n'))));
        SpinEditBox* entry = shown.user.entry("Position adjustment", 1);
        shown.user.reveal(entry);
        QTRY_VERIFY(!entry->visibleRegion().isEmpty());
    }

    /// What the chart is does not depend on the room.
    void aResizeDrawsNothing()
    {
        FollowingTool shown({1366, 768});
        QVERIFY(shown.user.show());
        log().clear();
        const QImage before = shown.user.shownChart();
        shown.window.resize(1500, 800);
        QTRY_COMPARE(shown.tool->width(), 1500);
        QVERIFY(!shown.user.mask()->isVisible());
        QCOMPARE(shown.user.shownChart(), before);
    }

    /// The mask covers all of the settings.
    void theMaskCoversTheColumn()
    {
        FollowingTool shown({1366, 1300});
        QVERIFY(shown.user.show());
        QTRY_COMPARE(shown.user.mask()->height(), 1300);
        QVERIFY(shown.user.mask()->width() >= shown.user.settings()->viewport()->width());
    }

    void switchedOff()
    {
        VTestChartTools plain;
        VTestChartTools tool;
        tool.setFollowsHost(true);
        tool.resize(1000, 600);
        tool.setFollowsHost(false);
        QCOMPARE(tool.size(), QSize(1610, 803));
        const auto sizesIn = [](const VTestChartTools& editor) {
            QVector<QSize> sizes;
            for (const SettingPanel* panel : User(const_cast<VTestChartTools&>(editor)).panels()) {
                sizes.append(panel->minimumSize());
                for (const QWidget* part : partsOf(panel))
                    sizes.append(part->minimumSize());
            }
            return sizes;
        };
        QCOMPARE(sizesIn(tool), sizesIn(plain));
    }

private:
    QFont m_font;
};

VD_TEST_MAIN(TestFollowsHost)
#include "tst_followshost.moc"
