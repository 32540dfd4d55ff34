#include "vtestcharttools.h"

#include "basicsettingbox.h"
#include "chartpreview.h"
#include "editor/chartsaver.h"
#include "editor/editbuttons.h"
#include "editor/editorparts.h"
#include "painters/paintinlinewidget.h"
#include "painters/recordlayers.h"
#include "paintpiclogowidget.h"
#include "publicsettingbox.h"
#include "selfsettingbox.h"
#include "support/chartlog.h"
#include "theme/resources.h"
#include "theme/themefile.h"
#include "translatemanager1.h"

#include <QDebug>
#include <QHideEvent>
#include <QPointer>
#include <QPushButton>
#include <QScopedValueRollback>

namespace vardeno::testcharttools {

namespace {

void logEdit(const char* slot, const char* type)
{
    qCDebug(chartLog) << slot << "TestChartTools EditType is :" << type;
}

} // namespace

/// The widget's parts; its slots say what they do together.
class VTestChartTools::Impl : public EditorParts
{
public:
    using EditorParts::EditorParts;
};

VTestChartTools::VTestChartTools(QWidget* parent)
    : QWidget(parent)
{
    ensureResources();
    qRegisterMetaType<TestChartToolsData>("TestChartToolsData");
    qRegisterMetaType<TestChartToolsData>("TestChartToolsData&"); // as sigSave has it: queued, as a copy
    qRegisterMetaType<EditType>("EditType");
    d = std::make_unique<Impl>(this);
    const QString themeFile = installedThemeFile();
    loadTheme(themeFile);
    setTestChartToolsStyleSheet(themeFile);
    d->fitToResolution();
    d->buttons->retranslate();
    setShowForAdd(false);
}

/// The window goes after this, and an entry that is being edited then ends its edit.
VTestChartTools::~VTestChartTools()
{
    for (SettingPanel* panel : d->panels.all())
        panel->disconnect(this);
}

TestChartToolsData VTestChartTools::getTestChartToolsData()
{
    d->panels.collectInto(d->record);
    return d->record;
}

void VTestChartTools::setTestChartToolsData(TestChartToolsData data)
{
    d->push(data);
    d->history.restart();
}

void VTestChartTools::applyRecord(const TestChartToolsData& record)
{
    d->apply(record);
    d->history.restart();
}

void VTestChartTools::amendRecord(const TestChartToolsData& record)
{
    const QPointer<VTestChartTools> alive(this); // the host is told of what may be undone
    d->history.settle();
    if (!alive)
        return;
    d->applyWhole(record);
    d->history.amend();
}

EditHistory* VTestChartTools::history() const
{
    return &d->history;
}

bool VTestChartTools::undoKeys() const
{
    return d->history.keysOn();
}

void VTestChartTools::setUndoKeys(bool on)
{
    d->history.setKeysOn(on);
}

QImage VTestChartTools::chartImage()
{
    const QScopedValueRollback<bool> updating(d->updating, true);
    return d->layers.image();
}

void VTestChartTools::setSavePath(const QString& root, const QString& name)
{
    d->saver->root = root;
    d->saver->previewName = name;
}

void VTestChartTools::setLastSavePath(const QString& path)
{
    d->saver->lastSavePath = path;
}

void VTestChartTools::setCurrentEditNum(const QString& name)
{
    d->saver->currentEditName = name;
}

void VTestChartTools::setTestImageNum(int number)
{
    d->saver->testImageNumber = number;
}

void VTestChartTools::setUpdateFlag(bool updating)
{
    d->updating = updating;
}

QString VTestChartTools::failedPath() const
{
    return d->saver->failedPath();
}

QString VTestChartTools::failedReason() const
{
    return d->saver->failedReason();
}

void VTestChartTools::setShowForAdd(bool add)
{
    d->showForAdd = add;
    d->buttons->setShowForAdd(add);
}

bool VTestChartTools::isShowForAdd() const
{
    return d->showForAdd;
}

void VTestChartTools::updateShowSaveBtnStatus(bool enabled)
{
    d->buttons->setUnsaved(enabled);
}

bool VTestChartTools::saveButtonsFollowState() const
{
    return d->buttons->followsState();
}

void VTestChartTools::setSaveButtonsFollowState(bool follows)
{
    d->buttons->setFollowsState(follows);
}

bool VTestChartTools::markersShown() const
{
    return d->layers.find<PaintInLineWidget>()->areMarkersVisible();
}

void VTestChartTools::setMarkersShown(bool shown)
{
    if (shown != markersShown())
        d->showMarkers(shown);
}

bool VTestChartTools::liveSliders() const
{
    return d->liveSliders.isOn();
}

void VTestChartTools::setLiveSliders(bool live)
{
    d->liveSliders.setOn(live);
}

bool VTestChartTools::promptPreview() const
{
    return d->cycle.isPrompt();
}

void VTestChartTools::setPromptPreview(bool prompt)
{
    d->cycle.setPrompt(prompt);
}

bool VTestChartTools::calmLock() const
{
    return d->cycle.look().isOn();
}

void VTestChartTools::setCalmLock(bool calm)
{
    d->cycle.look().setOn(calm);
}

bool VTestChartTools::typingGoesOn() const
{
    return d->cycle.input().typingGoesOn();
}

void VTestChartTools::setTypingGoesOn(bool goesOn)
{
    d->cycle.input().setTypingGoesOn(goesOn);
}

bool VTestChartTools::smallPng() const
{
    return d->saver->smallPng;
}

void VTestChartTools::setSmallPng(bool small)
{
    d->saver->smallPng = small;
}

bool VTestChartTools::followsHost() const
{
    return d->followsHost();
}

void VTestChartTools::setFollowsHost(bool follows)
{
    d->setFollowsHost(follows);
}

bool VTestChartTools::zoomablePreview() const
{
    return d->preview->zooms();
}

void VTestChartTools::setZoomablePreview(bool zooms)
{
    d->setZooms(zooms);
}

ChartPreview* VTestChartTools::preview() const
{
    return d->preview;
}

PaintPicLogoWidget* VTestChartTools::pictureLogo() const
{
    return d->layers.find<PaintPicLogoWidget>();
}

void VTestChartTools::hideViewWidget()
{
    d->preview->hideChart();
}

void VTestChartTools::setWheelScrollsPanels(bool scrolls)
{
    for (SettingPanel* panel : d->panels.all())
        panel->setWheelScrolls(scrolls);
}

bool VTestChartTools::wheelScrollsPanels() const
{
    return d->panels.basic()->wheelScrolls();
}

void VTestChartTools::setMoveRange(const QRect& range)
{
    d->picking.setMoveRange(range);
}

void VTestChartTools::setTestChartToolsStyleSheet(const QString& themeFile)
{
    extendTheme(themeFile);
    const QString sheet = findStyleSheet(themeFile);
    setStyleSheet(sheet);
    d->panels.basic()->setDialogStyleSheet(sheet);
    d->picking.setStyleSheet(sheet);
}

void VTestChartTools::closeColorDialog()
{
    d->picking.hide();
}

void VTestChartTools::loadLanguageFiles(const std::vector<QString>& files)
{
    for (const QString& file : files)
        TranslateManager1::instance().translator().load(file);
}

void VTestChartTools::switchLanguage(const QString& language)
{
    TranslateManager1::instance().switchLanguage(language);
    translateLanguage();
}

void VTestChartTools::translateLanguage()
{
    d->retranslate();
}

void VTestChartTools::slotGetHeightWidth()
{
    d->fitToResolution();
    d->captureAndDisplay();
}

void VTestChartTools::slotSaveImage()
{
    d->saver->savePreview([this] { return d->layers.image(); });
}

void VTestChartTools::slotCancleButtonClicked()
{
    logEdit(Q_FUNC_INFO, "EditType::Cancle");
    Q_EMIT sigTestToolEditDone(TestChartToolsData(), QString(), Cancle);
}

void VTestChartTools::slotAddConfirmButtonClicked()
{
    logEdit(Q_FUNC_INFO, "EditType::AddConfirm");
    d->buttons->addConfirm()->setEnabled(false);
    d->save(AddConfirm, QString());
}

void VTestChartTools::slotReplaceConfirmButtonClicked()
{
    if (!d->buttons->replaceApply()->isEnabled()) {
        logEdit(Q_FUNC_INFO, "EditType::ReplaceConfirmOnlyCancle");
        Q_EMIT sigTestToolEditDone(getTestChartToolsData(), QString(), ReplaceConfirmOnlyCancle);
        return;
    }
    d->buttons->replaceConfirm()->setEnabled(false);
    d->buttons->replaceApply()->setEnabled(false);
    logEdit(Q_FUNC_INFO, "EditType::ReplaceConfirm");
    d->save(ReplaceConfirm, d->saver->currentEditName);
}

void VTestChartTools::slotReplaceApplyButtonClicked()
{
    d->buttons->replaceApply()->setEnabled(false);
    logEdit(Q_FUNC_INFO, "EditType::ReplaceApply");
    d->save(ReplaceApply, d->saver->currentEditName);
}

void VTestChartTools::slotUpdateRow(int row)
{
    showGridRows(row, d->layers);
}

void VTestChartTools::slotUpdateCol(int col)
{
    showGridColumns(col, d->layers);
}

void VTestChartTools::slotUpdateResolution()
{
    d->panels.text()->setResolution(d->panels.common()->resolutionWidth(),
                                    d->panels.common()->resolutionHeight());
}

void VTestChartTools::slotSaveBtnLight()
{
    updateShowSaveBtnStatus(true);
}

void VTestChartTools::slotMainWindowMove(const QRect& globalRect, const QPoint& movePos)
{
    d->picking.moveWithHost(globalRect, movePos);
}

void VTestChartTools::slotShowColorDialog(QPushButton* button)
{
    d->picking.open(button);
}

void VTestChartTools::slotColorSelected(const QColor& color)
{
    if (d->cycle.status().isDone())
        d->picking.select(color);
}

void VTestChartTools::slotColorDialogRejected()
{
    d->picking.reject();
}

void VTestChartTools::slotDialogAccepted(QColor color)
{
    d->picking.accept(color);
    d->panels.basic()->addColor(color, d->picking.servedRole());
}

void VTestChartTools::slotUpdatePaintEventStatus(QString senderName)
{
    qCDebug(chartLog) << Q_FUNC_INFO << "PaintTextChartTool is begining";
    if (!isVisible() || d->updating)
        return;
    if (const char* const done = d->cycle.status().note(senderName))
        qCDebug(chartLog) << Q_FUNC_INFO << done;
    if (!d->cycle.status().isDone())
        return;
    d->cycle.finish();
    qCDebug(chartLog) << Q_FUNC_INFO << "PaintTextChartTool is done";
}

void VTestChartTools::showEvent(QShowEvent* event)
{
    slotGetHeightWidth();
    QWidget::showEvent(event);
}

void VTestChartTools::resizeEvent(QResizeEvent* event)
{
    if (d->followsHost())
        d->fitToHost(); // the chart is the same
    else
        slotGetHeightWidth();
    QWidget::resizeEvent(event);
}

void VTestChartTools::closeEvent(QCloseEvent* event)
{
    closeColorDialog();
    QWidget::closeEvent(event);
}

/// A host may put another page of its window in the editor's place.
void VTestChartTools::hideEvent(QHideEvent* event)
{
    if (!event->spontaneous())
        closeColorDialog();
    QWidget::hideEvent(event);
}

} // namespace vardeno::testcharttools
