#include "vtestcharttools.h"

#include "basicsettingbox.h"
#include "controls/swatch.h"
#include "customcolordialog.h"
#include "editor/chartfolder.h"
#include "editor/editbuttons.h"
#include "editor/heldarrow.h"
#include "editor/inputkeeper.h"
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
#include "saveimagethread.h"
#include "selfsettingbox.h"
#include "support/translation.h"
#include "theme/resources.h"
#include "theme/themefile.h"
#include "translatemanager1.h"

#include <propertybox.h>

#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QHBoxLayout>
#include <QHideEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>

#include <algorithm>

namespace vardeno::testcharttools {

namespace {

constexpr QSize toolSize(1610, 803);
constexpr QSize viewAreaSize(1199, 766);
constexpr QSize settingsSize(410, 802);

constexpr char servedRole[] = "customColorDialog"; ///< of the colour picker: what its colour is for

constexpr int lockDelay = 10;       ///< ms: lets the mask paint before the panels lock
constexpr int snapshotDelay = 100;  ///< ms: one snapshot for all that a change sets off
constexpr int deletionDelay = 2000; ///< ms: the host learns of the new chart before the old one goes

/// The column of the panels, which fill its width: its scroll bar, when there is one, lies over their right
/// margin.
class SettingsColumn : public QScrollArea
{
public:
    explicit SettingsColumn(QWidget* parent)
        : QScrollArea(parent)
    {
        setFixedSize(settingsSize);
        setWidgetResizable(true);
        setFrameShape(QFrame::NoFrame);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, [this](int, int maximum) {
            const int width = verticalScrollBar()->sizeHint().width();
            setViewportMargins(0, 0, maximum > 0 ? -width : 0, 0);
            verticalScrollBar()->parentWidget()->raise();
        });
    }
};

} // namespace

/// The widget's parts, and what its slots do with them.
class VTestChartTools::Impl : public QObject
{
public:
    explicit Impl(VTestChartTools* tool);

    void createWidget();
    QWidget* createViewColumn();
    QWidget* createSettingsColumn();
    PropertyBox* createSection(const char* objectName, const QString& title);
    template <typename Panel>
    Panel* addPanel(PropertyBox* section, const char* itemName, int lockRank);
    void createColorDialog();
    void createConnects();
    void connectButtons();
    void connectReports();
    void connectColorDialog();
    void initTestChartTools();
    void centreColorDialog();

    void fitToResolution();
    void captureAndDisplay();
    void beginCycle();
    void showMask();
    void lockControls(bool locked);
    void takeSnapshot();
    bool isPaintDone() const;
    QString servedColorRole() const
    {
        return colorDialog ? colorDialog->property(servedRole).toString() : QString();
    }

    QString saveImage(EditType type, const QString& name);
    QImage imageForSaving();
    void write(const QImage& image, const QString& path, const std::function<void()>& written);
    void chartWritten(EditType type, const QString& path);
    void scheduleFileDeletion(const QString& path, const QString& replacement);

    VTestChartTools* owner;
    PropertyBox* layerSection = nullptr;
    PropertyBox* contentSection = nullptr;
    BasicSettingBox* basicPanel = nullptr;
    InLineSettingBox* inLinePanel = nullptr;
    LogoSettingBox* logoPanel = nullptr;
    PublicSettingBox* publicPanel = nullptr;
    SelfSettingBox* selfPanel = nullptr;
    std::vector<SettingPanel*> panels; ///< as they follow one another in the column and in the record
    std::map<int, SettingPanel*> panelsByLockRank; ///< the order in which they are locked, and take the focus
    LayerStack layers;
    CustomColorDialog* colorDialog = nullptr; ///< null without a grandparent
    QWidget* viewArea = nullptr;
    QScrollArea* scrollArea = nullptr;
    QWidget* scrollContent = nullptr;
    EditButtons* buttons = nullptr;
    QWidget* mask = nullptr;
    QLabel* previewLabel = nullptr;
    QVBoxLayout* scrollLayout = nullptr;
    InputKeeper input;
    HeldArrow heldArrow;
    QRect fittedPreviewRect;
    QImage snapshot;
    QString savePath = QStringLiteral(" ");
    QString previewName = QStringLiteral(" ");
    QString currentEditName = QStringLiteral(" ");
    QString lastSavePath = QStringLiteral(" ");
    QString failedPath;
    QString failedReason;
    TestChartToolsData record;
    QPoint dialogAnchor;
    QColor colorBeforePicking; ///< invalid while there is none to go back to
    bool showForAdd = false;
    int testImageNumber = 0;
    std::map<int, bool> paintStatus;
    bool updating = false;
    bool cycleBegun = false; ///< since control was last given back to the event loop
    bool pushing = false;    ///< a record is being pushed: one capture at its end serves all its changes
    bool captureWanted = false;
    QList<QTimer*> deletionTimers;
};

VTestChartTools::Impl::Impl(VTestChartTools* tool)
    : owner(tool)
    , layers(tool)
    , input(tool)
    , heldArrow(tool)
{
    for (int painter = 0; painter < 8; ++painter)
        paintStatus[painter] = false;
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
    createColorDialog();
    publicPanel->setPaintPublicBrightWidget(layers.find<PaintPublicBrightWidget>());
    publicPanel->setPaintPublicWidget(layers.find<PaintPublicWidget>());
}

void VTestChartTools::Impl::createColorDialog()
{
    if (!owner->parentWidget() || !owner->parentWidget()->parentWidget())
        return;
    colorDialog = new CustomColorDialog(owner);
    colorDialog->setFloating(false);
    colorDialog->setMoveClamped(true);
    colorDialog->hide();
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
    return column;
}

QWidget* VTestChartTools::Impl::createSettingsColumn()
{
    scrollArea = new SettingsColumn(owner);
    scrollArea->setObjectName(QStringLiteral("ScrollArea"));
    scrollContent = new QWidget;
    scrollContent->setObjectName(QStringLiteral("scrollWidget"));
    scrollContent->setAttribute(Qt::WA_StyledBackground);
    scrollArea->setWidget(scrollContent);
    scrollLayout = new QVBoxLayout(scrollContent);
    scrollLayout->setContentsMargins(0, 0, 0, 0);
    scrollLayout->setSpacing(0);

    layerSection = createSection("basePropertyBox", translated(QStringLiteral("Layer settings")));
    basicPanel = addPanel<BasicSettingBox>(layerSection, "basicSetting", 0);
    publicPanel = addPanel<PublicSettingBox>(layerSection, "publicSetting", 3);
    contentSection = createSection("userSettingPropertyBox",
                                   translated(QStringLiteral("Display content personalization")));
    inLinePanel = addPanel<InLineSettingBox>(contentSection, "inLineSetting", 1);
    logoPanel = addPanel<LogoSettingBox>(contentSection, "logoSetting", 2);
    selfPanel = addPanel<SelfSettingBox>(contentSection, "selfSetting", 4);
    scrollLayout->addStretch();

    mask = new QWidget(scrollContent);
    mask->setObjectName(QStringLiteral("maskWidget"));
    mask->setFixedSize(settingsSize);
    mask->setAttribute(Qt::WA_StyledBackground);
    mask->hide();
    connect(scrollArea->verticalScrollBar(), &QScrollBar::valueChanged, mask,
            [this](int y) { mask->move(0, y); });
    input.setCover(mask);
    return scrollArea;
}

PropertyBox* VTestChartTools::Impl::createSection(const char* objectName, const QString& title)
{
    auto* section = new PropertyBox(scrollContent);
    section->setObjectName(QLatin1String(objectName));
    section->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    section->setTitleItem(title);
    scrollLayout->addWidget(section);
    return section;
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
    panelsByLockRank[lockRank] = panel;
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
    if (!colorDialog)
        return;
    connect(colorDialog, &CustomColorDialog::sigColorSelected, owner, &VTestChartTools::slotColorSelected);
    connect(colorDialog, &CustomColorDialog::sigColorExternallyChanged, owner,
            &VTestChartTools::slotColorSelected);
    connect(colorDialog, &CustomColorDialog::sigColorDialogRejected, owner,
            &VTestChartTools::slotColorDialogRejected);
    connect(colorDialog, &CustomColorDialog::sigColorAccept, owner, &VTestChartTools::slotDialogAccepted);
}

/// On the anchor first, then on the host, from which the tool may have been taken since it was built.
void VTestChartTools::Impl::centreColorDialog()
{
    const QWidget* page = owner->parentWidget();
    const QWidget* host = page ? page->parentWidget() : nullptr;
    colorDialog->adjustSize(); // before it is first shown it has no size of its own
    QRect frame = colorDialog->frameGeometry();
    frame.moveCenter(dialogAnchor);
    if (host)
        frame.moveCenter(host->mapToGlobal(host->rect().center()));
    colorDialog->move(frame.topLeft());
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

void VTestChartTools::Impl::captureAndDisplay()
{
    captureWanted = pushing;
    if (pushing)
        return;
    if (!owner->isVisible()) {
        takeSnapshot();
        return;
    }
    for (auto& [number, painted] : paintStatus)
        painted = false;
    showMask();
    if (!cycleBegun)
        beginCycle();
}

/// One pair of timers serves all the signals of one change.
void VTestChartTools::Impl::beginCycle()
{
    cycleBegun = true;
    QTimer::singleShot(0, this, [this] { cycleBegun = false; });
    QTimer::singleShot(lockDelay, this, [this] {
        if (owner->isVisible())
            lockControls(true);
    });
    QTimer::singleShot(snapshotDelay, this, [this] {
        if (owner->isVisible())
            takeSnapshot();
    });
}

void VTestChartTools::Impl::showMask()
{
    mask->raise();
    mask->show();
}

void VTestChartTools::Impl::lockControls(bool locked)
{
    input.begin(); // unlocking takes the focus as well, and a cycle may end before its lock has come
    for (const auto& [rank, panel] : panelsByLockRank)
        panel->setControlsDisabled(locked);
    buttons->setLocked(locked);
    if (locked)
        return;
    input.end();
    heldArrow.resume();
}

void VTestChartTools::Impl::takeSnapshot()
{
    previewLabel->clear(); // lets go of the snapshot, whose memory is used again
    layers.compose(snapshot);
    previewLabel->setPixmap(QPixmap::fromImage(snapshot));
    previewLabel->resize(fittedPreviewRect.size());
    previewLabel->move(fittedPreviewRect.topLeft());
}

bool VTestChartTools::Impl::isPaintDone() const
{
    return std::all_of(chartLayers().begin(), chartLayers().end(),
                       [this](const Layer& layer) { return !layer.awaited || paintStatus.at(layer.number); });
}

QString VTestChartTools::Impl::saveImage(EditType type, const QString& name)
{
    const QString folder = chartFolder(savePath, QDateTime::currentDateTime());
    QDir().mkpath(folder);
    const QString fileName = name.isEmpty() ? translated(QStringLiteral("TestImage")) +
                                                  QString::number(testImageNumber) + QLatin1String(".png")
                                            : name;
    const QString path = folder + QLatin1Char('/') + fileName;
    write(imageForSaving(), path, [this, type, path] { chartWritten(type, path); });
    return path;
}

/// The layers' reports while they paint for saving are not those of a repaint cycle.
QImage VTestChartTools::Impl::imageForSaving()
{
    updating = true;
    const QImage image = layers.image();
    updating = false;
    return image;
}

void VTestChartTools::Impl::write(const QImage& image, const QString& path,
                                  const std::function<void()>& written)
{
    buttons->beginWriting();
    auto* thread = new SaveImageThread(image, path, owner);
    connect(
        thread, &SaveImageThread::saveFinished, this,
        [this, thread, path, written](bool success) {
            if (success) {
                written();
                return;
            }
            failedPath = path;
            failedReason = thread->failedReason();
            buttons->endWriting(false);
            Q_EMIT owner->sigFail();
        },
        Qt::QueuedConnection);
    connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    thread->start(QThread::InheritPriority);
}

void VTestChartTools::Impl::chartWritten(EditType type, const QString& path)
{
    const QString superseded = lastSavePath;      // the host may name the new chart while it is told of it
    const QPointer<VTestChartTools> alive(owner); // or delete the tool
    owner->getTestChartToolsData();
    buttons->endWriting(true);
    Q_EMIT owner->sigSave(record);
    if (alive)
        Q_EMIT owner->sigTestToolEditDone(owner->getTestChartToolsData(), path, type);
    qDebug() << Q_FUNC_INFO << "testChartImage Folder Generated success:" << path;
    if (alive && (type == ReplaceConfirm || type == ReplaceApply))
        scheduleFileDeletion(superseded, path);
}

void VTestChartTools::Impl::scheduleFileDeletion(const QString& path, const QString& replacement)
{
    qDebug() << Q_FUNC_INFO << "testChartImage Folder Add to Timer :" << path;
    auto* timer = new QTimer(owner);
    timer->setSingleShot(true);
    connect(timer, &QTimer::timeout, this, [this, path, timer, replacement, root = savePath] {
        removeChartFolder(path, replacement, root);
        deletionTimers.removeOne(timer);
        timer->deleteLater();
        qDebug() << Q_FUNC_INFO << "Delete timer completed for:" << path;
    });
    deletionTimers.append(timer);
    qDebug() << Q_FUNC_INFO << "QTimer Start for:" << path << "in 2 seconds";
    timer->start(deletionDelay);
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
    d->pushing = true;
    d->layers.setHeld(true);
    for (SettingPanel* panel : d->panels)
        panel->pushFrom(data);
    if (d->showForAdd)
        d->basicPanel->colorStripeAddDefaultColors(true);
    d->layers.setHeld(false);
    d->pushing = false;
    if (d->captureWanted)
        d->captureAndDisplay();
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
    d->savePath = root;
    d->previewName = name;
}

void VTestChartTools::setLastSavePath(const QString& path)
{
    d->lastSavePath = path;
}

void VTestChartTools::setCurrentEditNum(const QString& name)
{
    d->currentEditName = name;
}

void VTestChartTools::setTestImageNum(int number)
{
    d->testImageNumber = number;
}

void VTestChartTools::setUpdateFlag(bool updating)
{
    d->updating = updating;
}

QString VTestChartTools::failedPath() const
{
    return d->failedPath;
}

QString VTestChartTools::failedReason() const
{
    return d->failedReason;
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
    d->dialogAnchor = range.center();
    if (d->colorDialog)
        d->colorDialog->setMoveRange(range);
}

void VTestChartTools::setTestChartToolsStyleSheet(const QString& themeFile)
{
    extendTheme(themeFile);
    const QString sheet = findStyleSheet(themeFile);
    setStyleSheet(sheet);
    d->basicPanel->setDialogStyleSheet(sheet);
    if (d->colorDialog)
        d->colorDialog->setStyleSheet(sheet);
}

void VTestChartTools::closeColorDialog()
{
    if (d->colorDialog)
        d->colorDialog->hide();
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
    if (!d->colorDialog)
        return;
    d->colorDialog->setTitle(translated(QStringLiteral("SelectColor")));
    d->colorDialog->retranslate();
}

void VTestChartTools::slotGetHeightWidth()
{
    d->fitToResolution();
    d->captureAndDisplay();
}

void VTestChartTools::slotSaveImage()
{
    const QString folder = d->savePath + QLatin1Char('/') + d->previewName;
    QDir().mkpath(folder);
    // The image lies beside the folder of its name, not in it.
    d->write(d->layers.image(), folder + QLatin1String(".png"), [this] {
        getTestChartToolsData();
        d->buttons->endWriting(true);
        d->buttons->cancel()->setEnabled(false);
        Q_EMIT sigSave(d->record);
    });
}

void VTestChartTools::slotCancleButtonClicked()
{
    qDebug() << Q_FUNC_INFO << "TestChartTools EditType is :"
             << "EditType::Cancle";
    Q_EMIT sigTestToolEditDone(TestChartToolsData(), QString(), Cancle);
}

void VTestChartTools::slotAddConfirmButtonClicked()
{
    qDebug() << Q_FUNC_INFO << "TestChartTools EditType is :"
             << "EditType::AddConfirm";
    d->buttons->addConfirm()->setEnabled(false);
    d->saveImage(AddConfirm, QString());
}

void VTestChartTools::slotReplaceConfirmButtonClicked()
{
    if (!d->buttons->replaceApply()->isEnabled()) {
        qDebug() << Q_FUNC_INFO << "TestChartTools EditType is :"
                 << "EditType::ReplaceConfirmOnlyCancle";
        Q_EMIT sigTestToolEditDone(getTestChartToolsData(), QString(), ReplaceConfirmOnlyCancle);
        return;
    }
    d->buttons->replaceConfirm()->setEnabled(false);
    d->buttons->replaceApply()->setEnabled(false);
    qDebug() << Q_FUNC_INFO << "TestChartTools EditType is :"
             << "EditType::ReplaceConfirm";
    d->saveImage(ReplaceConfirm, d->currentEditName);
}

void VTestChartTools::slotReplaceApplyButtonClicked()
{
    d->buttons->replaceApply()->setEnabled(false);
    qDebug() << Q_FUNC_INFO << "TestChartTools EditType is :"
             << "EditType::ReplaceApply";
    d->saveImage(ReplaceApply, d->currentEditName);
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
    d->dialogAnchor = globalRect.center();
    if (d->colorDialog)
        d->colorDialog->slotMainWindowMove(globalRect, movePos);
}

void VTestChartTools::slotShowColorDialog(QPushButton* button)
{
    if (!d->colorDialog || !button)
        return;
    const QString role = colorRole(button);
    const QColor start = role == QLatin1String("add") ? QColor() : startColor(button);
    // Another click on the button of an open picker does not change the colour to go back to.
    if (!d->colorDialog->isVisible() || role != d->servedColorRole())
        d->colorBeforePicking = start;
    d->colorDialog->setProperty(servedRole, role);
    d->colorDialog->setCurrentColor(start);
    if (!d->colorDialog->isVisible()) {
        d->colorDialog->setWindowFlags(d->colorDialog->windowFlags() | Qt::Window | Qt::WindowStaysOnTopHint);
        d->centreColorDialog();
    }
    d->colorDialog->setWindowState(d->colorDialog->windowState() & ~Qt::WindowMinimized);
    const QPointer<CustomColorDialog> dialog = d->colorDialog;
    dialog->show(); // handles events, one of which may be the end of this tool
    if (!dialog)
        return;
    dialog->raise();
    dialog->activateWindow();
}

void VTestChartTools::slotColorSelected(const QColor& color)
{
    if (!d->isPaintDone())
        return;
    for (SettingPanel* panel : d->panels)
        panel->setRoleColor(d->servedColorRole(), color);
}

void VTestChartTools::slotColorDialogRejected()
{
    if (!d->colorBeforePicking.isValid())
        return;
    for (SettingPanel* panel : d->panels)
        panel->setRoleColor(d->servedColorRole(), d->colorBeforePicking);
    d->colorDialog->setCurrentColor(d->colorBeforePicking); // for the next choice, while it is locked open
}

void VTestChartTools::slotDialogAccepted(QColor color)
{
    if (d->colorBeforePicking.isValid())
        d->colorBeforePicking = color; // what the next choice goes back to, while the picker is locked open
    d->basicPanel->addColor(color, d->servedColorRole());
}

void VTestChartTools::slotUpdatePaintEventStatus(QString senderName)
{
    qDebug() << Q_FUNC_INFO << "PaintTextChartTool is begining";
    if (!isVisible() || d->updating)
        return;
    for (const Layer& layer : chartLayers()) {
        if (senderName != QLatin1String(layer.memberName))
            continue;
        d->paintStatus[layer.number] = true;
        qDebug() << Q_FUNC_INFO << layer.doneText;
        break;
    }
    if (!d->isPaintDone())
        return;
    d->mask->hide();
    d->lockControls(false);
    qDebug() << Q_FUNC_INFO << "PaintTextChartTool is done";
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
