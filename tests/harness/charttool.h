#pragma once

#include "barerecord.h"
#include "settles.h"
#include "testcase.h"

#include <basicsettingbox.h>
#include <inlinesettingbox.h>
#include <layerpainter.h>
#include <logosettingbox.h>
#include <paintbasicwidget.h>
#include <paintinlinewidget.h>
#include <paintpiclogowidget.h>
#include <paintpublicbrightwidget.h>
#include <paintpublicwidget.h>
#include <paintrowcolsequewidget.h>
#include <paintselfwidget.h>
#include <painttextlogowidget.h>
#include <publicsettingbox.h>
#include <selfsettingbox.h>
#include <spineditbox.h>
#include <vtestcharttools.h>

#include <QDir>
#include <QFile>
#include <QLayout>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <functional>
#include <vector>

/// What the tests of the editor share. Header only: the test support is not linked with the library.
namespace charttool {

using namespace vardeno::testcharttools;

/// A user in front of an editor, who finds its widgets by what they show or are called, and operates them
/// with clicks and keys that take the way through the window.
class User
{
public:
    explicit User(VTestChartTools& tool)
        : m_tool(tool)
    {
    }

    QPushButton* cancel() const { return editButton(1); }
    QPushButton* addConfirm() const { return editButton(2); }
    QPushButton* replaceConfirm() const { return editButton(3); }
    QPushButton* replaceApply() const { return editButton(4); }
    QPushButton* saveButton() const { return named<QPushButton>("saveButton"); }
    QWidget* mask() const { return named<QWidget>("maskWidget"); }
    QLabel* preview() const { return named<QLabel>("ViewWidget"); }
    QWidget* layerView() const { return painter<PaintBasicWidget>()->parentWidget(); }
    QScrollArea* settings() const { return named<QScrollArea>("ScrollArea"); }
    BasicSettingBox* basicPanel() const { return m_tool.findChild<BasicSettingBox*>(); }
    InLineSettingBox* inLinePanel() const { return m_tool.findChild<InLineSettingBox*>(); }
    LogoSettingBox* logoPanel() const { return m_tool.findChild<LogoSettingBox*>(); }
    PublicSettingBox* publicPanel() const { return m_tool.findChild<PublicSettingBox*>(); }
    SelfSettingBox* selfPanel() const { return m_tool.findChild<SelfSettingBox*>(); }
    /// In the order in which they are locked.
    QList<SettingPanel*> panels() const
    {
        return {basicPanel(), inLinePanel(), logoPanel(), publicPanel(), selfPanel()};
    }
    QRadioButton* chess() const { return named<QRadioButton>("chessRadioButton"); }
    QRadioButton* colorBar() const { return named<QRadioButton>("colorStripeRadioButton"); }
    QListWidget* stripeList() const { return named<QListWidget>("_colorStripeListWidget"); }

    template <typename Widget>
    Widget* named(const char* objectName) const
    {
        return m_tool.findChild<Widget*>(QLatin1String(objectName));
    }

    template <typename Painter>
    Painter* painter() const
    {
        return m_tool.findChild<Painter*>();
    }

    /// The numeric entry at `position` in the row that `caption` names. The tool must have been shown.
    SpinEditBox* entry(const char* caption, int position = 0) const
    {
        const QLabel* const label = captionLabel(QLatin1String(caption));
        if (!label)
            return nullptr;
        QList<SpinEditBox*> row;
        for (auto* box : label->parentWidget()->findChildren<SpinEditBox*>()) {
            if (box->y() == label->y())
                row.append(box);
        }
        std::sort(row.begin(), row.end(), [](const QWidget* a, const QWidget* b) { return a->x() < b->x(); });
        return row.value(position);
    }

    /// The switch in the row that `caption` names.
    QAbstractButton* toggle(const char* caption) const
    {
        const QLabel* const label = captionLabel(QLatin1String(caption));
        for (QLayout* row : label->parentWidget()->findChildren<QLayout*>()) {
            for (int i = 0; row->indexOf(const_cast<QLabel*>(label)) >= 0 && i < row->count(); ++i) {
                auto* button = qobject_cast<QAbstractButton*>(row->itemAt(i)->widget());
                if (button && button->isCheckable())
                    return button;
            }
        }
        return nullptr;
    }

    /// The label that shows `text`, elided or not.
    QLabel* captionLabel(const QString& text) const
    {
        for (auto* label : m_tool.findChildren<QLabel*>()) {
            if (label->text() == text || label->toolTip() == text)
                return label;
        }
        return nullptr;
    }

    /// Shows the tool and waits until it has painted.
    bool show()
    {
        m_tool.window()->show();
        m_tool.window()->activateWindow();
        return QTest::qWaitForWindowExposed(m_tool.window()) && settle();
    }

    bool settle() { return settles(m_tool); }

    /// Scrolls the settings column until it shows `widget`; does nothing for what is not in the column.
    void reveal(const QWidget* widget)
    {
        if (settings()->widget()->isAncestorOf(widget))
            settings()->ensureWidgetVisible(const_cast<QWidget*>(widget));
    }

    /// Clicks where `widget` is, so that what covers it gets the click.
    void click(const QWidget* widget) { clickAt(widget, widget->rect().center()); }

    void clickAt(const QWidget* widget, const QPoint& position)
    {
        reveal(widget);
        QWidget* const window = widget->window();
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, widget->mapTo(window, position));
    }

    /// Replaces what an entry shows and presses Enter.
    void enter(SpinEditBox* box, const QString& text)
    {
        click(box);
        QWindow* const window = m_tool.window()->windowHandle();
        QTest::keyClick(window, Qt::Key_A, Qt::ControlModifier);
        for (const QChar character : text)
            QTest::keyClick(window, character.toLatin1());
        QTest::keyClick(window, Qt::Key_Return);
    }

    QImage shownChart() const { return preview()->pixmap(Qt::ReturnByValue).toImage(); }

private:
    QPushButton* editButton(int position) const
    {
        QLayoutItem* const item = named<QWidget>("saveWidget")->layout()->itemAt(position);
        return item ? qobject_cast<QPushButton*>(item->widget()) : nullptr;
    }

    VTestChartTools& m_tool;
};

/// What a host hears from a tool, in order.
class Host : public QObject
{
public:
    struct Message
    {
        QString signal;
        TestChartToolsData record;
        QString path;
        int type = -1;
    };

    explicit Host(VTestChartTools& tool)
    {
        connect(&tool, &VTestChartTools::sigSave, this, [this](TestChartToolsData& record) {
            hear({QStringLiteral("sigSave"), record, QString(), -1});
        });
        connect(&tool, &VTestChartTools::sigTestToolEditDone, this,
                [this](const TestChartToolsData& record, const QString& path, EditType type) {
                    hear({QStringLiteral("sigTestToolEditDone"), record, path, type});
                });
        connect(&tool, &VTestChartTools::sigFail, this, [this] {
            hear({QStringLiteral("sigFail"), {}, QString(), -1});
        });
    }

    /// The signals' names in the order in which they came.
    QStringList heard() const
    {
        QStringList names;
        for (const Message& message : messages)
            names.append(message.signal);
        return names;
    }

    /// Waits for `count` signals.
    bool hears(std::size_t count) const
    {
        return QTest::qWaitFor([&] { return messages.size() >= count; }, 20000);
    }

    /// The last one, empty before the first.
    Message last() const { return messages.empty() ? Message() : messages.back(); }

    std::vector<Message> messages;
    std::function<void(const Message&)> reaction; ///< what the host does while it is told

private:
    void hear(const Message& message)
    {
        messages.push_back(message);
        if (reaction)
            reaction(message);
    }
};

/// A small bare chart: 160 x 90 pixels with cabinets of 10 x 10.
inline TestChartToolsData smallRecord()
{
    TestChartToolsData record = bareRecord();
    record.publicData.resolutionWidth = 160;
    record.publicData.resolutionHeight = 90;
    return record;
}

/// Switches off in the tool what a bare record has switched off.
inline void switchLayersOff(const User& user)
{
    for (const char* caption : {"Show Circle", "Show Diagonal", "Show Serial Number", "Show Logo",
                                "Display custom text", "Show Resolution"}) {
        if (QAbstractButton* const button = user.toggle(caption))
            button->setChecked(false);
    }
}

/// Fills the cells of a chessboard whose cells are whole pixels.
inline void fillChess(QImage& chart, const TestChartToolsData& record)
{
    const int height = chart.height() / record.publicData.boxRow;
    const int width = chart.width() / record.publicData.boxCol;
    const QRgb odd = toQColor(record.basicData.oddColor).rgb();
    const QRgb even = toQColor(record.basicData.evenColor).rgb();
    for (int y = 0; y < chart.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(chart.scanLine(y));
        for (int x = 0; x < chart.width(); ++x)
            line[x] = (y / height + x / width) % 2 == 0 ? odd : even;
    }
}

/// Fills vertical stripes and leaves the columns of the remainder black.
inline void fillStripes(QImage& chart, const TestChartToolsData& record)
{
    const auto& colors = record.basicData.colorStripeColors;
    const int width = colors.empty() ? 0 : chart.width() / int(colors.size());
    for (int y = 0; y < chart.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(chart.scanLine(y));
        for (int x = 0; x < width * int(colors.size()); ++x)
            line[x] = colors.at(x / width).rgb();
    }
}

/// A colour under the brightness veil, channel by channel, rounded as the raster engine rounds.
inline QRgb veiled(QRgb color, int brightness)
{
    const int light = brightness * 255 / 100;
    const auto channel = [light](int value) {
        const int product = value * light;
        return (product + (product >> 8) + 0x80) >> 8;
    };
    return qRgb(channel(qRed(color)), channel(qGreen(color)), channel(qBlue(color)));
}

/// The picture of a bare and opaque record in whole pixels, made without the library: the base pattern
/// (chessboard or stripes), the veil over it, the border (of one pixel or an even width) over both.
inline QImage expectedChart(const TestChartToolsData& record)
{
    const PublicChartData& common = record.publicData;
    QImage chart(common.resolutionWidth, common.resolutionHeight, QImage::Format_RGB32);
    chart.fill(Qt::black);
    if (record.basicData.chessChecked)
        fillChess(chart, record);
    else
        fillStripes(chart, record);

    const int border = common.showOutBorder ? common.outBorderWidth : 0;
    const QRect inside = chart.rect().adjusted(border, border, -border, -border);
    const QRgb frame = toQColor(common.outBorderColor).rgb();
    for (int y = 0; y < chart.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(chart.scanLine(y));
        for (int x = 0; x < chart.width(); ++x)
            line[x] = inside.contains(x, y) ? veiled(line[x], common.brightness) : frame;
    }
    return chart;
}

/// The lines that the tool has logged whose fixed text starts as `texts` says, without the function's
/// signature, which must stand before it.
inline QStringList toolLog(const QStringList& messages, const QString& texts)
{
    const QRegularExpression start(texts);
    QStringList lines;
    for (const QString& message : messages) {
        const QRegularExpressionMatch match = start.match(message);
        if (!match.hasMatch())
            continue;
        const bool isSigned =
            message.left(match.capturedStart()).contains(QLatin1String("vardeno::testcharttools::"));
        lines.append((isSigned ? QString() : QStringLiteral("(unsigned) ")) +
                     message.mid(match.capturedStart()));
    }
    return lines;
}

/// The lines about repaint cycles.
inline QStringList paintLog(const QStringList& messages)
{
    return toolLog(messages, QStringLiteral("(PaintTextChartTool|Paint\\w+Widget) is "));
}

/// The lines about edits, saved charts and removed ones.
inline QStringList editLog(const QStringList& messages)
{
    return toolLog(messages,
                   QStringLiteral("TestChartTools EditType|testChartImage|QTimer Start|Delete timer"));
}

inline QString quoted(const QString& text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

/// Writes a file, and the folders above it.
inline bool writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).absolutePath()) && file.open(QIODevice::WriteOnly) &&
           file.write(content) == content.size();
}

/// The timers of removals that are still to come.
inline QList<QTimer*> deletionTimers(const VTestChartTools& tool)
{
    QList<QTimer*> timers;
    for (auto* timer : tool.findChildren<QTimer*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (timer->isSingleShot() && timer->interval() == 2000)
            timers.append(timer);
    }
    return timers;
}

} // namespace charttool
