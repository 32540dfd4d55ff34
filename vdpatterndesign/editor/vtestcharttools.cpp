#include "vtestcharttools.h"

#include "basicsettingbox.h"
#include "customcolordialog.h"
#include "editor/chartsaver.h"
#include "editor/colorpicking.h"
#include "editor/editbuttons.h"
#include "editor/livesliders.h"
#include "editor/repaintcycle.h"
#include "editor/settingscolumn.h"
#include "geometry/previewfit.h"
#include "inlinesettingbox.h"
#include "logosettingbox.h"
#include "paintbasicwidget.h"
#include "painters/layerstack.h"
#include "painters/recordlayers.h"
#include "paintinlinewidget.h"
#include "paintpiclogowidget.h"
#include "paintpublicbrightwidget.h"
#include "paintpublicwidget.h"
#include "paintselfwidget.h"
#include "painttextlogowidget.h"
#include "publicsettingbox.h"
#include "selfsettingbox.h"
#include "support/chartlog.h"
#include "support/translation.h"
#include "theme/resources.h"
#include "theme/themefile.h"
#include "translatemanager1.h"

#include <propertybox.h>

#include <QDebug>
#include <QHBoxLayout>
#include <QHideEvent>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>

namespace vardeno::testcharttools {

namespace {

constexpr QSize toolSize(1610, 803);
constexpr QSize viewAreaSize(1199, 766);

} // namespace

/// The widget's parts, and what its slots do with them.
class VTestChartTools::Impl : public QObject
{
public:
    explicit Impl(VTestChartTools* tool);

    void createWidget();
    QWidget* createViewColumn();
    QWidget* createSettingsColumn();
    template <typename Panel>
    Panel* addPanel(PropertyBox* section, const char* itemName, int lockRank);
    void createConnects();
    void connectButtons();
    void connectReports();
    void connectColorDialog();
    void initTestChartTools();

    void fitToResolution();
    void captureAndDisplay() { cycle.start(); }
    void takeSnapshot();
    QImage imageForSaving();

    VTestChartTools* owner;
    PropertyBox* layerSection = nullptr;
    PropertyBox* contentSection = nullptr;
    BasicSettingBox* basicPanel = nullptr;
    InLineSettingBox* inLinePanel = nullptr;
    LogoSettingBox* logoPanel = nullptr;
    PublicSettingBox* publicPanel = nullptr;
    SelfSettingBox* selfPanel = nullptr;
    std::vector<SettingPanel*> panels; ///< as they follow one another in the column and in the record
    LayerStack layers;
    QWidget* viewArea = nullptr;
    EditButtons* buttons = nullptr;
    QLabel* previewLabel = nullptr;
    QRect fittedPreviewRect;
    QImage snapshot;
    TestChartToolsData record;
    bool showForAdd = false;
    bool updating = false;
    RepaintCycle cycle;
    LiveSliders liveSliders;
    ColorPicking picking;
    std::unique_ptr<ChartSaver> saver;
};

VTestChartTools::Impl::Impl(VTestChartTools* tool)
    : owner(tool)
    , layers(tool)
    , cycle(tool, [this] { takeSnapshot(); })
    , liveSliders([this](const std::function<void()>& change) { cycle.showAtOnce(change); })
    , picking(tool, panels)
{
}

void VTestChartTools::Impl::createWidget()
{
    owner->setObjectName(QStringLiteral("globalwidget"));
    owner->setFixedSize(toolSize);
    auto* columns = new QHBoxLayout(owner);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(0);
    columns->addWidget(createViewColumn());
    columns->addWidget(createSettingsColumn());

    basicPanel->setPaintWidget(layers.find<PaintBasicWidget>());
    inLinePanel->setPaintWidget(layers.find<PaintInLineWidget>());
    inLinePanel->initPaintWidget();
    logoPanel->setLogoStack(layers.sharedPlace());
    logoPanel->setPicLogoWidget(layers.find<PaintPicLogoWidget>());
    logoPanel->setTextLogoWidget(layers.find<PaintTextLogoWidget>());
    selfPanel->setPaintSelfWidget(layers.find<PaintSelfWidget>());
    picking.createDialog();
    publicPanel->setPaintPublicBrightWidget(layers.find<PaintPublicBrightWidget>());
    publicPanel->setPaintPublicWidget(layers.find<PaintPublicWidget>());
}

QWidget* VTestChartTools::Impl::createViewColumn()
{
    auto* column = new QWidget(owner);
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    viewArea = new QWidget(column);
    viewArea->setObjectName(QStringLiteral("viewArea"));
    viewArea->setAttribute(Qt::WA_StyledBackground);
    viewArea->setFixedSize(viewAreaSize);
    previewLabel = new QLabel(viewArea);
    previewLabel->setObjectName(QStringLiteral("ViewWidget"));
    previewLabel->setScaledContents(true);
    layout->addWidget(viewArea);
    buttons = new EditButtons(column);
    layout->addWidget(buttons);
    cycle.setButtons(buttons);
    saver = std::make_unique<ChartSaver>(owner, buttons, record);
    return column;
}

QWidget* VTestChartTools::Impl::createSettingsColumn()
{
    auto* column = new SettingsColumn(owner);
    layerSection = column->addSection("basePropertyBox", translated(QStringLiteral("Layer settings")));
    basicPanel = addPanel<BasicSettingBox>(layerSection, "basicSetting", 0);
    publicPanel = addPanel<PublicSettingBox>(layerSection, "publicSetting", 3);
    contentSection = column->addSection("userSettingPropertyBox",
                                        translated(QStringLiteral("Display content personalization")));
    inLinePanel = addPanel<InLineSettingBox>(contentSection, "inLineSetting", 1);
    logoPanel = addPanel<LogoSettingBox>(contentSection, "logoSetting", 2);
    selfPanel = addPanel<SelfSettingBox>(contentSection, "selfSetting", 4);
    column->finish();
    cycle.setMask(column->mask());
    cycle.finishSetup(column->widget());
    return column;
}

template <typename Panel>
Panel* VTestChartTools::Impl::addPanel(PropertyBox* section, const char* itemName, int lockRank)
{
    auto* panel = new Panel(owner);
    auto* layout = new QVBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(panel);
    section->addItem(QLatin1String(itemName), layout, panel->sectionHeight());
    panels.push_back(panel);
    cycle.addPanel(panel, lockRank);
    liveSliders.watch(panel);
    return panel;
}

void VTestChartTools::Impl::connectButtons()
{
    const auto connectTo = [this](QPushButton* button, void (VTestChartTools::*slot)()) {
        connect(button, &QPushButton::clicked, owner, slot);
    };
    connectTo(buttons->save(), &VTestChartTools::slotSaveImage);
    connectTo(buttons->cancel(), &VTestChartTools::slotCancleButtonClicked);
    connectTo(buttons->addConfirm(), &VTestChartTools::slotAddConfirmButtonClicked);
    connectTo(buttons->replaceConfirm(), &VTestChartTools::slotReplaceConfirmButtonClicked);
    connectTo(buttons->replaceApply(), &VTestChartTools::slotReplaceApplyButtonClicked);
}

void VTestChartTools::Impl::createConnects()
{
    connectButtons();
    for (SettingPanel* panel : panels)
        connect(panel, &SettingPanel::changed, this, &Impl::captureAndDisplay);
    connect(publicPanel, &PublicSettingBox::resolutionSignal, owner, &VTestChartTools::slotGetHeightWidth);
    connect(publicPanel, &PublicSettingBox::editingFinished, owner, &VTestChartTools::slotGetHeightWidth);
    connect(selfPanel, &SelfSettingBox::selfSignal, owner, &VTestChartTools::slotUpdateResolution);
    connect(publicPanel, &PublicSettingBox::rowSignal, owner, &VTestChartTools::slotUpdateRow);
    connect(publicPanel, &PublicSettingBox::colSignal, owner, &VTestChartTools::slotUpdateCol);
    for (SettingPanel* panel : panels)
        connect(panel, &SettingPanel::changed, owner, &VTestChartTools::slotSaveBtnLight);
    for (SettingPanel* panel : panels)
        connect(panel, &SettingPanel::colorRequested, owner, &VTestChartTools::slotShowColorDialog);
    connectColorDialog();
    connectReports();
}

void VTestChartTools::Impl::connectColorDialog()
{
    const CustomColorDialog* const colorDialog = picking.dialog();
    if (!colorDialog)
        return;
    connect(colorDialog, &CustomColorDialog::sigColorSelected, owner, &VTestChartTools::slotColorSelected);
    connect(colorDialog, &CustomColorDialog::sigColorExternallyChanged, owner,
            &VTestChartTools::slotColorSelected);
    connect(colorDialog, &CustomColorDialog::sigColorDialogRejected, owner,
            &VTestChartTools::slotColorDialogRejected);
    connect(colorDialog, &CustomColorDialog::sigColorAccept, owner, &VTestChartTools::slotDialogAccepted);
}

void VTestChartTools::Impl::connectReports()
{
    for (std::size_t i = 0; i < chartLayers().size(); ++i) {
        LayerPainter* const painter = layers.painter(i);
        const QString name = QLatin1String(chartLayers()[i].memberName);
        connect(
            painter, &LayerPainter::sigPaintEventUpdated, painter,
            [this, name] { owner->slotUpdatePaintEventStatus(name); }, Qt::DirectConnection);
    }
}

void VTestChartTools::Impl::initTestChartTools()
{
    const QString themeFile = installedThemeFile();
    loadTheme(themeFile);
    owner->setTestChartToolsStyleSheet(themeFile);
}

void VTestChartTools::Impl::fitToResolution()
{
    const QSize chart(publicPanel->resolutionWidth(), publicPanel->resolutionHeight());
    layers.setChartSize(chart);
    fittedPreviewRect = fittedPreview(viewArea->size(), chart);
}

void VTestChartTools::Impl::takeSnapshot()
{
    // What is shown at once is no cycle, and ends none.
    const QScopedValueRollback<bool> ignored(updating, updating || cycle.showsAtOnce());
    previewLabel->clear(); // lets go of the snapshot, whose memory is used again
    layers.compose(snapshot);
    previewLabel->setPixmap(QPixmap::fromImage(snapshot));
    previewLabel->resize(fittedPreviewRect.size());
    previewLabel->move(fittedPreviewRect.topLeft());
}

/// The layers' reports while they paint for saving are not those of a repaint cycle.
QImage VTestChartTools::Impl::imageForSaving()
{
    updating = true;
    const QImage image = layers.image();
    updating = false;
    return image;
}

VTestChartTools::VTestChartTools(QWidget* parent)
    : QWidget(parent)
{
    ensureResources();
    qRegisterMetaType<TestChartToolsData>("TestChartToolsData");
    qRegisterMetaType<TestChartToolsData>("TestChartToolsData&"); // as sigSave has it: queued, as a copy
    qRegisterMetaType<EditType>("EditType");
    d = std::make_unique<Impl>(this);
    d->createWidget();
    d->createConnects();
    d->initTestChartTools();
    d->fitToResolution();
    d->buttons->retranslate();
    setShowForAdd(false);
}

/// The window goes after this, and an entry that is being edited then ends its edit.
VTestChartTools::~VTestChartTools()
{
    for (SettingPanel* panel : d->panels)
        panel->disconnect(this);
}

TestChartToolsData VTestChartTools::getTestChartToolsData()
{
    for (const SettingPanel* panel : d->panels)
        panel->collectInto(d->record);
    return d->record;
}

void VTestChartTools::setTestChartToolsData(TestChartToolsData data)
{
    d->record = data;
    d->cycle.setHeld(true);
    d->layers.setHeld(true);
    for (SettingPanel* panel : d->panels)
        panel->pushFrom(data);
    if (d->showForAdd)
        d->basicPanel->colorStripeAddDefaultColors(true);
    d->layers.setHeld(false);
    d->cycle.setHeld(false);
}

void VTestChartTools::applyRecord(const TestChartToolsData& record)
{
    setTestChartToolsData(withChoices(record));
    d->layers.setHeld(true);
    showRecord(getTestChartToolsData(), d->layers);
    d->layers.setHeld(false);
    d->captureAndDisplay();
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

bool VTestChartTools::liveSliders() const
{
    return d->liveSliders.isOn();
}

void VTestChartTools::setLiveSliders(bool live)
{
    d->liveSliders.setOn(live);
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

PaintPicLogoWidget* VTestChartTools::pictureLogo() const
{
    return d->layers.find<PaintPicLogoWidget>();
}

void VTestChartTools::hideViewWidget()
{
    d->previewLabel->hide();
}

void VTestChartTools::setWheelScrollsPanels(bool scrolls)
{
    for (SettingPanel* panel : d->panels)
        panel->setWheelScrolls(scrolls);
}

bool VTestChartTools::wheelScrollsPanels() const
{
    return d->panels.front()->wheelScrolls();
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
    d->basicPanel->setDialogStyleSheet(sheet);
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
    d->buttons->retranslate();
    for (SettingPanel* panel : d->panels)
        panel->retranslate();
    d->layerSection->setTitleText(translated(QStringLiteral("Layer settings")));
    d->contentSection->setTitleText(translated(QStringLiteral("Display content personalization")));
    d->picking.retranslate();
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
    qCDebug(chartLog) << Q_FUNC_INFO << "TestChartTools EditType is :"
                      << "EditType::Cancle";
    Q_EMIT sigTestToolEditDone(TestChartToolsData(), QString(), Cancle);
}

void VTestChartTools::slotAddConfirmButtonClicked()
{
    qCDebug(chartLog) << Q_FUNC_INFO << "TestChartTools EditType is :"
                      << "EditType::AddConfirm";
    d->buttons->addConfirm()->setEnabled(false);
    d->saver->save(AddConfirm, QString(), [this] { return d->imageForSaving(); });
}

void VTestChartTools::slotReplaceConfirmButtonClicked()
{
    if (!d->buttons->replaceApply()->isEnabled()) {
        qCDebug(chartLog) << Q_FUNC_INFO << "TestChartTools EditType is :"
                          << "EditType::ReplaceConfirmOnlyCancle";
        Q_EMIT sigTestToolEditDone(getTestChartToolsData(), QString(), ReplaceConfirmOnlyCancle);
        return;
    }
    d->buttons->replaceConfirm()->setEnabled(false);
    d->buttons->replaceApply()->setEnabled(false);
    qCDebug(chartLog) << Q_FUNC_INFO << "TestChartTools EditType is :"
                      << "EditType::ReplaceConfirm";
    d->saver->save(ReplaceConfirm, d->saver->currentEditName, [this] { return d->imageForSaving(); });
}

void VTestChartTools::slotReplaceApplyButtonClicked()
{
    d->buttons->replaceApply()->setEnabled(false);
    qCDebug(chartLog) << Q_FUNC_INFO << "TestChartTools EditType is :"
                      << "EditType::ReplaceApply";
    d->saver->save(ReplaceApply, d->saver->currentEditName, [this] { return d->imageForSaving(); });
}

void VTestChartTools::slotUpdateRow(int row)
{
    d->layers.find<PaintInLineWidget>()->setRows(ushort(row));
    d->layers.find<PaintSelfWidget>()->setRows(ushort(row));
    d->layers.find<PaintBasicWidget>()->setRows(ushort(row));
}

void VTestChartTools::slotUpdateCol(int col)
{
    d->layers.find<PaintInLineWidget>()->setColumns(ushort(col));
    d->layers.find<PaintSelfWidget>()->setColumns(ushort(col));
    d->layers.find<PaintBasicWidget>()->setColumns(ushort(col));
}

void VTestChartTools::slotUpdateResolution()
{
    d->selfPanel->setResolution(d->publicPanel->resolutionWidth(), d->publicPanel->resolutionHeight());
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
    d->basicPanel->addColor(color, d->picking.servedRole());
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
