#pragma once

#include "chartshelf.h"

#include <markerdata.h>
#include <testcharttoolsdata.h>

#include <QObject>
#include <QThreadPool>

#include <functional>

class ChartList;
class QAction;
class QMenu;
class QWidget;
class UndoBar;

/// What one can do with the charts of a list: its menu, and the work behind it, which is done on a thread of
/// its own where it takes long.
class DeskLibrary : public QObject
{
    Q_OBJECT

public:
    /// `undo` offers what was deleted where there is no trash.
    DeskLibrary(ChartList* list, UndoBar* undo, QWidget* window);
    ~DeskLibrary() override;

    void setFolder(const QString& folder) { m_folder = folder; }
    QMenu* menu() const { return m_menu; }
    void retranslate();
    /// Another chart is selected, or an edit has begun or ended: then nothing can be done here.
    void update(bool isEditing);

    void newFrom();
    void duplicate();
    void askName();
    void remove();
    void askTags();
    void askTarget();
    void copyImage();
    void openFolder();
    void take(const QStringList& files);

    /// Writes the selected chart to `target`.
    void exportTo(const QString& target);

    /// False keeps what is deleted out of the desktop's trash, as where there is none.
    void setUsesTrash(bool uses) { m_usesTrash = uses; }

Q_SIGNALS:
    /// A new chart is wanted that begins with `record`.
    void newWanted(const vardeno::testcharttools::TestChartToolsData& record,
                   const vardeno::testcharttools::MarkerData& markers);
    void failed(const QString& what, const QString& details);
    /// What was done besides what is seen.
    void noted(const QString& what);

private:
    QAction* add(const char* text, const QKeySequence& shortcut, void (DeskLibrary::*does)());
    void rename(const QString& image, const QString& name);
    void inBackground(const std::function<ChartShelf::Outcome()>& work);
    void done(const ChartShelf::Outcome& outcome);

    ChartList* m_list;
    UndoBar* m_undo;
    QWidget* m_window;
    QMenu* m_menu;
    QString m_folder;
    bool m_usesTrash = true;
    QThreadPool m_pool;
    QList<QAction*> m_forChart;
    QAction* m_newFrom = nullptr;
};
