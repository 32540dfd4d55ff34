#include "editsession.h"

#include "chartfolderlist.h"
#include "editorlimits.h"
#include "hosttext.h"
#include "newchart.h"

#include <basicsettingbox.h>
#include <chartrecordfile.h>
#include <inlinesettingbox.h>
#include <logosettingbox.h>
#include <publicsettingbox.h>
#include <selfsettingbox.h>

#include <QDir>
#include <QFileInfo>
#include <QPointer>
#include <QPushButton>

#include <algorithm>

using namespace vardeno::testcharttools;

namespace {

/// The editor writes no image under an ending that is spelled otherwise.
QString nameForEditor(const QString& imagePath)
{
    const QFileInfo image(imagePath);
    return image.completeBaseName() + QLatin1Char('.') + image.suffix().toLower();
}

QString uploadedName(const QString& picture)
{
    return QLatin1String("pictures/") + QFileInfo(picture).fileName();
}

/// "<folder>/<name>", or with a number where that is taken: a picture that is shown is never written over.
QString freePath(const QString& folder, const QString& name)
{
    const QFileInfo wanted(folder + QLatin1Char('/') + name);
    QString path = wanted.filePath();
    for (int number = 2; QFileInfo::exists(path); ++number)
        path = QStringLiteral("%1/%2-%3.%4")
                   .arg(wanted.path(), wanted.completeBaseName(), QString::number(number), wanted.suffix());
    return path;
}

/// What tells a changed chart from one that is not.
QByteArray contentOf(const TestChartToolsData& record, const MarkerData& markers)
{
    return ChartRecordFile::toJson(record, ChartRecordFile::withMarkers({}, markers));
}

} // namespace

EditSession::EditSession(VTestChartTools* editor, QObject* parent)
    : QObject(parent)
    , m_editor(editor)
    , m_keeper([this] { return collect(); })
    , m_store(QString())
{
    m_editor->setSaveButtonsFollowState(true);
    connectEditor();
    connectChanges();
}

void EditSession::connectEditor()
{
    connect(
        m_editor, &VTestChartTools::sigTestToolEditDone, this,
        [this](const TestChartToolsData&, const QString& path, EditType type) { editorDone(type, path); });
    connect(m_editor, &VTestChartTools::sigFail, this, [this] {
        const QString path = m_editor->failedPath();
        fail(takeSave(path), path, m_editor->failedReason());
    });
    // The editor's own slots come first: they have taken the picture when the record is taken here.
    const auto buttons = m_editor->findChildren<QPushButton*>(QStringLiteral("ADDButton"));
    QList<QPushButton*> ofEdit;
    for (QPushButton* button : buttons) {
        if (button->parentWidget()->objectName() == QLatin1String("saveWidget"))
            ofEdit.append(button); // to add, to confirm a replacement, to apply one
    }
    Q_ASSERT(ofEdit.size() == 3);
    connect(ofEdit.at(0), &QPushButton::clicked, this, [this] { saveBegan(true); });
    connect(ofEdit.at(1), &QPushButton::clicked, this, &EditSession::editorConfirmed);
    connect(ofEdit.at(2), &QPushButton::clicked, this, [this] { saveBegan(false); });
}

void EditSession::connectChanges()
{
    const auto touch = [this] { m_keeper.touch(); };
    connect(m_editor->findChild<BasicSettingBox*>(), &BasicSettingBox::basicSignal, this, touch);
    auto* wall = m_editor->findChild<PublicSettingBox*>();
    connect(wall, &PublicSettingBox::publicSignal, this, touch);
    connect(wall, &PublicSettingBox::publicSignal, this, &EditSession::fitToWall, Qt::QueuedConnection);
    connect(m_editor->findChild<InLineSettingBox*>(), &InLineSettingBox::inlineSignal, this, touch);
    connect(m_editor->findChild<SelfSettingBox*>(), &SelfSettingBox::selfSignal, this, touch);
    auto* logo = m_editor->findChild<LogoSettingBox*>();
    connect(logo, &LogoSettingBox::logoSignal, this, touch);
    connect(
        logo, &LogoSettingBox::logoSignal, this, [this] { takePictureIn(); }, Qt::QueuedConnection);
}

void EditSession::add(const QString& folder)
{
    m_editor->setShowForAdd(true); // with the colour bar of a new chart
    m_editor->applyRecord(newChart());
    openNew(folder, {});
    m_fresh = m_editor->getTestChartToolsData();
}

void EditSession::add(const QString& folder, const TestChartToolsData& record, const MarkerData& markers)
{
    m_editor->setShowForAdd(false);
    m_editor->applyRecord(record);
    openNew(folder, markers);
}

/// With what the editor shows.
void EditSession::openNew(const QString& folder, const MarkerData& markers)
{
    Draft draft;
    draft.folder = folder;
    draft.document = ChartRecordFile::withMarkers({}, markers);
    draft.record = m_editor->getTestChartToolsData();
    open(draft, DraftFolder::create(draftsRoot()));
    m_unchanged = current();
}

/// While nothing but the wall was chosen, the new chart is the one for that wall.
void EditSession::fitToWall()
{
    if (!m_isOpen || !m_editor->isShowForAdd())
        return;
    const TestChartToolsData record = m_editor->getTestChartToolsData();
    const PublicChartData& wall = record.publicData;
    PublicChartData& before = m_fresh.publicData;
    before.resolutionWidth = wall.resolutionWidth;
    before.resolutionHeight = wall.resolutionHeight;
    before.boxRow = wall.boxRow;
    before.boxCol = wall.boxCol;
    if (ChartRecordFile::toJson(record) != ChartRecordFile::toJson(m_fresh))
        return;
    TestChartToolsData fitted = newChart(wall);
    fitted.basicData = record.basicData;
    if (ChartRecordFile::toJson(fitted) == ChartRecordFile::toJson(record))
        return;
    const bool isTheUsers = isChanged(); // not where the chart of a wall has just been opened
    m_editor->amendRecord(fitted);
    m_fresh = m_editor->getTestChartToolsData();
    if (!isTheUsers)
        m_unchanged = current();
}

QStringList EditSession::edit(const QString& folder, const QString& imagePath)
{
    const QByteArray digest = recordDigest(imagePath);
    auto reading = ChartRecordFile::read(ChartFolderList::recordPath(imagePath));
    if (!reading.problems.isEmpty())
        return reading.problems;

    auto draftFolder = DraftFolder::create(draftsRoot());
    Draft draft{folder, imagePath, digest, reading.document, reading.record, {}};
    std::string& picture = draft.record.logoData.picturePath;
    const QString path = QString::fromStdString(picture);
    if (!path.isEmpty() && draftFolder) {
        const QString within = pathWithin(QFileInfo(imagePath).path(), path);
        const QString copy =
            draftFolder->picturesPath() + QLatin1Char('/') + (within.isEmpty() ? uploadedName(path) : within);
        QDir().mkpath(QFileInfo(copy).path());
        QFile::copy(path, copy);
        picture = copy.toStdString();
    }
    open(draft, std::move(draftFolder));
    const QStringList beyond = beyondEditor(draft.record, m_editor->getTestChartToolsData());
    if (!beyond.isEmpty()) {
        giveUp();
        Q_EMIT notEditable(imagePath, beyond);
        return {};
    }
    m_unchanged = current();
    if (!path.isEmpty() && !QFileInfo(path).isFile())
        Q_EMIT pictureMissing(QFileInfo(path).fileName());
    return {};
}

void EditSession::resume(std::unique_ptr<DraftFolder> folder, const Draft& draft)
{
    open(draft, std::move(folder));
    m_unchanged.clear(); // nothing that is saved is like it
}

void EditSession::open(const Draft& draft, std::unique_ptr<DraftFolder> folder)
{
    m_edited = draft;
    if (!QFileInfo::exists(draft.editedImage))
        m_edited.editedImage.clear(); // the draft of a chart that is gone is a new one
    m_fresh = {};
    m_keeper.start(std::move(folder));
    setStore(ChartStore(draft.folder));
    m_lastSaved.clear();
    m_isOpen = true;
    prepareSave();
    m_editor->setMarkersShown(ChartRecordFile::markersOf(draft.document).showMarkers);
    show(draft.record);
    m_editor->updateShowSaveBtnStatus(true);
}

/// The colour bar of a chart that is added would take its default colours.
void EditSession::show(const TestChartToolsData& record)
{
    m_editor->setShowForAdd(false);
    m_editor->applyRecord(record);
    m_editor->setShowForAdd(m_edited.editedImage.isEmpty());
}

QString EditSession::chartName() const
{
    return QFileInfo(m_edited.editedImage).fileName();
}

bool EditSession::isChanged() const
{
    return m_isOpen && current() != m_unchanged;
}

QByteArray EditSession::current() const
{
    return contentOf(m_editor->getTestChartToolsData(), shownMarkers());
}

MarkerData EditSession::shownMarkers() const
{
    return {m_editor->markersShown()};
}

bool EditSession::hasMarkers() const
{
    return m_isOpen && m_editor->markersShown();
}

void EditSession::setMarkers(bool shown)
{
    m_editor->setMarkersShown(shown);
    m_editor->updateShowSaveBtnStatus(true);
    m_keeper.touch();
}

Draft EditSession::collect() const
{
    Draft draft = m_edited;
    draft.record = m_editor->getTestChartToolsData();
    draft.document = ChartRecordFile::withMarkers(m_edited.document, shownMarkers());
    return draft;
}

void EditSession::giveUp()
{
    m_isOpen = false;
    setStore(ChartStore(QString())); // before the draft goes, from which pictures are copied
    m_keeper.end();
}

void EditSession::end()
{
    giveUp();
    Q_EMIT ended(m_lastSaved);
}

void EditSession::prepareSave()
{
    m_saveRoot = m_store.nextSaveRoot();
    m_editor->setSavePath(m_saveRoot, QStringLiteral("preview"));
    m_editor->setTestImageNum(ChartFolderList::nextNumber(m_store.folder(), chartNames()));
    m_editor->setCurrentEditNum(nameForEditor(m_edited.editedImage));
}

void EditSession::saveBegan(bool ends)
{
    if (!m_isOpen)
        return;
    m_saves.push_back({m_saveRoot, m_editor->getTestChartToolsData(), shownMarkers(), ends, {}});
    prepareSave();
}

void EditSession::confirm()
{
    m_failed.ends = true;
    retry(m_store.folder());
}

void EditSession::retry(const QString& folder)
{
    if (folder != m_store.folder()) {
        setStore(ChartStore(folder));
        m_edited.folder = folder;
    }
    prepareSave();
    m_editor->updateShowSaveBtnStatus(true);
    if (m_editor->isShowForAdd())
        m_editor->slotAddConfirmButtonClicked();
    else if (m_failed.ends)
        m_editor->slotReplaceConfirmButtonClicked();
    else
        m_editor->slotReplaceApplyButtonClicked();
    saveBegan(m_failed.ends);
}

EditSession::Save EditSession::takeSave(const QString& path)
{
    const auto it = std::find_if(m_saves.begin(), m_saves.end(), [&](const Save& save) {
        return path.startsWith(save.root + QLatin1Char('/'));
    });
    if (it == m_saves.end())
        return {
            QString(), m_editor->getTestChartToolsData(), shownMarkers(), true, {}}; // not begun by this desk
    const Save save = *it;
    m_saves.erase(it);
    return save;
}

void EditSession::editorDone(EditType type, const QString& path)
{
    if (!m_isOpen)
        return;
    if (!path.isEmpty()) {
        m_publishing.push_back(takeSave(path));
        m_publishing.back().path = path;
        publishNext();
        return;
    }
    m_isUnsavedConfirm = type == ReplaceConfirmOnlyCancle;
    if (isSaving())
        (m_saves.empty() ? m_publishing.back() : m_saves.back()).ends = true; // its outcome decides
    else if (type == Cancle && isChanged())
        Q_EMIT cancelled();
    else
        end();
}

void EditSession::editorConfirmed()
{
    if (!m_isUnsavedConfirm)
        saveBegan(true);
    m_isUnsavedConfirm = false;
}

/// What is being published in the one before is done; nobody hears of it.
void EditSession::setStore(ChartStore store)
{
    m_publisher.drop();
    m_publishing.clear();
    m_store = std::move(store);
}

/// Whatever the next one replaces is known when the one before is in its place.
void EditSession::publishNext()
{
    if (m_publisher.isBusy() || m_publishing.empty())
        return;
    const Save& save = m_publishing.front();
    const Publication next = {save.path,
                              save.record,
                              ChartRecordFile::withMarkers(m_edited.document, save.markers),
                              pictureName(save.record),
                              m_edited.editedImage,
                              m_edited.editedDigest};
    m_publisher.start(next, m_store, [this](const Publication::Outcome& outcome) { published(outcome); });
}

void EditSession::published(const Publication::Outcome& outcome)
{
    const Save save = m_publishing.front();
    m_publishing.pop_front();
    const QPointer<EditSession> alive(this);
    if (outcome.image.isEmpty())
        fail(save, save.path, outcome.problem);
    else
        accept(save, outcome);
    if (alive)
        publishNext();
}

void EditSession::accept(const Save& save, const Publication::Outcome& outcome)
{
    const QString image = outcome.image;
    if (outcome.isReplacedKept)
        Q_EMIT replacedChartKept(m_edited.editedImage);
    m_edited.editedImage = image;
    m_edited.editedDigest = outcome.digest;
    m_edited.document = ChartRecordFile::withMarkers(m_edited.document, save.markers);
    m_unchanged = contentOf(save.record, save.markers);
    m_lastSaved = image;
    Q_EMIT saved(image);
    if (!isChanged()) {
        m_keeper.forget();
        if (save.ends && !isSaving()) {
            end();
            return;
        }
    }
    const bool isChangedSince = isChanged();
    m_editor->setShowForAdd(false);
    prepareSave();
    if (isChangedSince) {
        m_editor->updateShowSaveBtnStatus(true);
        m_keeper.touch();
    }
}

void EditSession::fail(const Save& save, const QString& path, const QString& reason)
{
    m_failed = save;
    m_editor->updateShowSaveBtnStatus(true);
    Q_EMIT failed(m_store.finalPath(path), reason);
}

/// A picture that was just uploaded lies where the next of its name, for another client's chart, replaces it.
void EditSession::takePictureIn()
{
    if (!m_isOpen || !m_keeper.folder())
        return;
    TestChartToolsData record = m_editor->getTestChartToolsData();
    const QString picture = QString::fromStdString(record.logoData.picturePath);
    const QString folder = m_keeper.folder()->picturesPath();
    if (!pathWithin(folder, picture).isEmpty() || !QFileInfo(picture).isFile())
        return;
    const QString copy = freePath(folder, uploadedName(picture));
    QDir().mkpath(QFileInfo(copy).path());
    if (!QFile::copy(picture, copy))
        return;
    record.logoData.picturePath = copy.toStdString();
    m_editor->amendRecord(record);
}

/// Where the record's picture is to lie in the chart's folder, empty for one that is built in or missing.
QString EditSession::pictureName(const TestChartToolsData& record) const
{
    const QString picture = QString::fromStdString(record.logoData.picturePath);
    const QString within = m_keeper.folder() ? pathWithin(m_keeper.folder()->picturesPath(), picture)
                                             : pathWithin(QFileInfo(m_edited.editedImage).path(), picture);
    if (!within.isEmpty())
        return within;
    return QFileInfo(picture).isFile() ? uploadedName(picture) : QString();
}
