#include "editor/editorparts.h"

#include "basicsettingbox.h"
#include "chartcabinets.h"
#include "customcolordialog.h"
#include "editor/chartsaver.h"
#include "editor/editbuttons.h"
#include "editor/previewbar.h"
#include "editor/settingscolumn.h"
#include "painters/paintinlinewidget.h"
#include "painters/recordlayers.h"
#include "publicsettingbox.h"
#include "selfsettingbox.h"
#include "vtestcharttools.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScopedValueRollback>

#include <algorithm>

namespace vardeno::testcharttools {

namespace {

constexpr QSize toolSize(1610, 803);
constexpr QSize leastToolSize(660, 300);
constexpr int leastPreview = 240; ///< wide, beside settings that are wider than usual

} // namespace

EditorParts::EditorParts(VTestChartTools* tool)
    : layers(tool)
    , cycle(tool, [this] { takeSnapshot(); })
    , liveSliders([this](const std::function<void()>& change) { cycle.showAtOnce(change); })
    , picking(tool, panels.all())
    , history(
          tool, [this] { return shownRecord(); },
          [this](const TestChartToolsData& shown) {
              applyWhole(shown);
              if (shown.basicData.chessChecked)
                  panels.basic()->forgetColorBar(); // as it was before the bar was chosen first
          })
    , m_tool(tool)
{
    build();
    connectButtons();
    connectPanels();
    connectColorDialog();
    connectReports();
}

EditorParts::~EditorParts() = default;

void EditorParts::build()
{
    m_tool->setObjectName(QStringLiteral("globalwidget"));
    m_tool->setFixedSize(toolSize);
    auto* columns = new QHBoxLayout(m_tool);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(0);
    columns->addWidget(createViewColumn());
    panels.build(m_tool);
    columns->addWidget(panels.column());

    int lockRank = 0;
    for (SettingPanel* panel : panels.inLockOrder())
        cycle.addPanel(panel, lockRank++);
    for (const SettingPanel* panel : panels.all()) {
        liveSliders.watch(panel);
        history.watch(panel);
    }
    cycle.setMask(panels.column()->mask());
    cycle.finishSetup(panels.column()->widget());
    panels.setPainters(layers);
    picking.createDialog();
}

QWidget* EditorParts::createViewColumn()
{
    auto* column = new QWidget(m_tool);
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    preview = new ChartPreview(column);
    preview->setCabinets(
        [this](const QPoint& pixel) { return ChartCabinets::labelAt(shownRecord(), pixel); });
    layout->addWidget(preview);
    buttons = new EditButtons(column);
    layout->addWidget(buttons);
    cycle.setButtons(buttons);
    saver = std::make_unique<ChartSaver>(m_tool, buttons, record);
    return column;
}

void EditorParts::connectButtons()
{
    const auto connectTo = [this](QPushButton* button, void (VTestChartTools::*slot)()) {
        connect(button, &QPushButton::clicked, m_tool, slot);
    };
    connectTo(buttons->save(), &VTestChartTools::slotSaveImage);
    connectTo(buttons->cancel(), &VTestChartTools::slotCancleButtonClicked);
    connectTo(buttons->addConfirm(), &VTestChartTools::slotAddConfirmButtonClicked);
    connectTo(buttons->replaceConfirm(), &VTestChartTools::slotReplaceConfirmButtonClicked);
    connectTo(buttons->replaceApply(), &VTestChartTools::slotReplaceApplyButtonClicked);
}

void EditorParts::connectPanels()
{
    for (SettingPanel* panel : panels.all())
        connect(panel, &SettingPanel::changed, this, &EditorParts::captureAndDisplay);
    const PublicSettingBox* common = panels.common();
    connect(common, &PublicSettingBox::resolutionSignal, m_tool, &VTestChartTools::slotGetHeightWidth);
    connect(common, &PublicSettingBox::editingFinished, m_tool, &VTestChartTools::slotGetHeightWidth);
    connect(panels.text(), &SelfSettingBox::selfSignal, m_tool, &VTestChartTools::slotUpdateResolution);
    connect(common, &PublicSettingBox::rowSignal, m_tool, &VTestChartTools::slotUpdateRow);
    connect(common, &PublicSettingBox::colSignal, m_tool, &VTestChartTools::slotUpdateCol);
    for (SettingPanel* panel : panels.all())
        connect(panel, &SettingPanel::changed, m_tool, &VTestChartTools::slotSaveBtnLight);
    for (SettingPanel* panel : panels.all())
        connect(panel, &SettingPanel::colorRequested, m_tool, &VTestChartTools::slotShowColorDialog);
}

void EditorParts::connectColorDialog()
{
    const CustomColorDialog* const dialog = picking.dialog();
    if (!dialog)
        return;
    connect(dialog, &CustomColorDialog::sigColorSelected, m_tool, &VTestChartTools::slotColorSelected);
    connect(dialog, &CustomColorDialog::sigColorExternallyChanged, m_tool,
            &VTestChartTools::slotColorSelected);
    connect(dialog, &CustomColorDialog::sigColorDialogRejected, m_tool,
            &VTestChartTools::slotColorDialogRejected);
    connect(dialog, &CustomColorDialog::sigColorAccept, m_tool, &VTestChartTools::slotDialogAccepted);
}

void EditorParts::connectReports()
{
    for (std::size_t i = 0; i < chartLayers().size(); ++i) {
        LayerPainter* const painter = layers.painter(i);
        const QString name = QLatin1String(chartLayers()[i].memberName);
        connect(
            painter, &LayerPainter::sigPaintEventUpdated, painter,
            [this, name] { m_tool->slotUpdatePaintEventStatus(name); }, Qt::DirectConnection);
    }
}

void EditorParts::setFollowsHost(bool follows)
{
    if (m_followsHost == follows)
        return;
    m_followsHost = follows;
    m_tool->setMinimumSize(follows ? leastToolSize : toolSize);
    m_tool->setMaximumSize(follows ? QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX) : toolSize);
    preview->setFollowsRoom(follows);
    buttons->setFollowsRoom(follows);
    panels.setFollowsHost(follows);
    if (follows)
        m_tool->installEventFilter(this);
    else
        m_tool->removeEventFilter(this);
    fitToHost();
}

void EditorParts::fitToHost()
{
    m_fitting = false;
    buttons->fit();
    if (m_previewBar)
        m_previewBar->fit();
    panels.fit(std::max(m_tool->width() - leastPreview, 0));
}

/// Once for all that one event changes: a sheet reaches every widget.
void EditorParts::fitLater()
{
    if (m_fitting)
        return;
    m_fitting = true;
    QMetaObject::invokeMethod(
        this, [this] { fitToHost(); }, Qt::QueuedConnection);
}

bool EditorParts::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fitLater();
    return QObject::eventFilter(watched, event);
}

void EditorParts::setZooms(bool zooms)
{
    preview->setZooms(zooms);
    if (zooms && !m_previewBar) {
        m_previewBar = new PreviewBar(preview, buttons->parentWidget());
        buttons->setSideBar(m_previewBar);
    }
    if (m_previewBar)
        m_previewBar->setVisible(zooms);
}

void EditorParts::retranslate()
{
    buttons->retranslate();
    if (m_previewBar)
        m_previewBar->retranslate();
    panels.retranslate();
    picking.retranslate();
    fitToHost();
}

void EditorParts::fitToResolution()
{
    const QSize chart(panels.common()->resolutionWidth(), panels.common()->resolutionHeight());
    layers.setChartSize(chart);
    preview->fitTo(chart);
}

void EditorParts::takeSnapshot()
{
    preview->showChart([this](QImage& chart) {
        // What is shown at once is no cycle, and ends none.
        const QScopedValueRollback<bool> ignored(updating, updating || cycle.showsAtOnce());
        layers.compose(chart);
    });
}

/// The layers' reports while they paint for saving are not those of a repaint cycle.
void EditorParts::save(EditType type, const QString& replaced)
{
    saver->save(type, replaced, [this] {
        updating = true;
        QImage image = layers.image();
        updating = false;
        return image;
    });
}

TestChartToolsData EditorParts::shownRecord() const
{
    TestChartToolsData shown;
    panels.collectInto(shown);
    return shown;
}

void EditorParts::push(const TestChartToolsData& data)
{
    record = data;
    cycle.setHeld(true);
    layers.setHeld(true);
    panels.pushFrom(data);
    if (showForAdd)
        panels.basic()->colorStripeAddDefaultColors(true);
    layers.setHeld(false);
    cycle.setHeld(false);
}

void EditorParts::apply(const TestChartToolsData& data)
{
    push(withChoices(data));
    layers.setHeld(true);
    panels.collectInto(record);
    showRecord(record, layers);
    layers.setHeld(false);
    captureAndDisplay();
}

void EditorParts::showMarkers(bool shown)
{
    layers.find<PaintInLineWidget>()->setMarkersVisible(shown);
    captureAndDisplay();
}

void EditorParts::applyWhole(const TestChartToolsData& data)
{
    const QScopedValueRollback<bool> replacing(showForAdd, false);
    apply(data);
}

} // namespace vardeno::testcharttools
