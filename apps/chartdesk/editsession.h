#pragma once

#include "chartstore.h"
#include "draftkeeper.h"
#include "publication.h"

#include <markerdata.h>
#include <vtestcharttools.h>

#include <QObject>

#include <deque>
#include <vector>

class QPushButton;

/// One edit at a time, from the opening of a chart until it is saved or given up: what it replaces, what it
/// has changed, its draft, and the way of a saved chart into its folder.
class EditSession : public QObject
{
    Q_OBJECT

public:
    explicit EditSession(vardeno::testcharttools::VTestChartTools* editor, QObject* parent = nullptr);

    /// Opens a new chart, to be saved in `folder`.
    void add(const QString& folder);
    /// Opens `record` as a new chart, with coded markers where `markers` wants them.
    void add(const QString& folder, const vardeno::testcharttools::TestChartToolsData& record,
             const vardeno::testcharttools::MarkerData& markers);
    /// Opens the chart `imagePath` of `folder`; what is wrong with its record, and nothing is opened then.
    /// Nor is one that `notEditable` tells of.
    QStringList edit(const QString& folder, const QString& imagePath);
    /// Goes on with an edit that was not ended.
    void resume(std::unique_ptr<DraftFolder> folder, const Draft& draft);

    bool isOpen() const { return m_isOpen; }
    /// Until the chart stands in its folder, or could not.
    bool isSaving() const { return !m_saves.empty() || !m_publishing.empty(); }
    /// Whether something would be lost if the edit ended now.
    bool isChanged() const;
    /// The folder that the chart is saved in.
    QString folder() const { return m_store.folder(); }
    /// The name of the chart's file, empty for a new one.
    QString chartName() const;

    /// What is being edited, as it is shown.
    vardeno::testcharttools::TestChartToolsData record() const { return m_editor->getTestChartToolsData(); }
    /// Whether the chart that is being edited has coded markers. No undo takes a change of it back.
    bool hasMarkers() const;
    void setMarkers(bool shown);

    /// Saves and ends the edit, as its confirm button does.
    void confirm();
    /// Saves in `folder` what could not be saved.
    void retry(const QString& folder);
    /// Ends the edit; what is not saved is given up.
    void end();

Q_SIGNALS:
    /// The chart stands in its folder now.
    void saved(const QString& imagePath);
    /// The edit has ended; `imagePath` is the last that it saved, empty for none.
    void ended(const QString& imagePath);
    /// The user wants to end an edit that has changes.
    void cancelled();
    /// The chart could not become `imagePath`; `reason` may be empty. `retry` is possible.
    void failed(const QString& imagePath, const QString& reason);
    /// The chart's picture `name` is not where its record says.
    void pictureMissing(const QString& name);
    /// The editor would change these `fields` of the chart's record.
    void notEditable(const QString& imagePath, const QStringList& fields);
    /// The replaced chart was changed by somebody else while it was edited here: both are kept.
    void replacedChartKept(const QString& imagePath);

private:
    /// One that the editor is writing, as it was when that began.
    struct Save
    {
        QString root;
        vardeno::testcharttools::TestChartToolsData record;
        vardeno::testcharttools::MarkerData markers;
        bool ends;
        QString path = {}; ///< of its picture, once that is written
    };

    void giveUp();
    void openNew(const QString& folder, const vardeno::testcharttools::MarkerData& markers);
    void connectEditor();
    void connectChanges();
    void open(const Draft& draft, std::unique_ptr<DraftFolder> folder);
    void show(const vardeno::testcharttools::TestChartToolsData& record);
    void prepareSave();
    void saveBegan(bool ends);
    Save takeSave(const QString& path);
    void editorDone(vardeno::testcharttools::EditType type, const QString& path);
    void editorConfirmed();
    void setStore(ChartStore store);
    void publishNext();
    void published(const Publication::Outcome& outcome);
    void accept(const Save& save, const Publication::Outcome& outcome);
    void fail(const Save& save, const QString& path, const QString& reason);
    Draft collect() const;
    QByteArray current() const;
    vardeno::testcharttools::MarkerData shownMarkers() const;
    void takePictureIn();
    void fitToWall();
    QString pictureName(const vardeno::testcharttools::TestChartToolsData& record) const;

    vardeno::testcharttools::VTestChartTools* m_editor;
    DraftKeeper m_keeper;
    ChartStore m_store;
    Draft m_edited; ///< what is being edited, as it was opened or last saved
    QByteArray m_unchanged;
    vardeno::testcharttools::TestChartToolsData m_fresh; ///< a new chart as it began, for its wall
    QString m_saveRoot;
    QString m_lastSaved;
    std::vector<Save> m_saves;
    std::deque<Save> m_publishing; ///< one after the other
    Publisher m_publisher;         ///< goes before the store
    Save m_failed;
    bool m_isOpen = false;
    bool m_isUnsavedConfirm = false; ///< a confirmation has just found nothing to save
};
