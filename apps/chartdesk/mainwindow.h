#pragma once

#include <markerdata.h>
#include <vtestcharttools.h>

#include <QMainWindow>

class ChartList;
class DeskLibrary;
class DeskOutput;
class DeskWalls;
class DraftOffer;
class EditSession;
class HelpMenu;
class LanguageMenu;
class ListBar;
class QAction;
class QLabel;
class QMessageBox;
class QStackedWidget;
class MarkerSwitch;
class RecentFolders;
class SaveQuestions;
class ThemeMenu;
class ToolkitTexts;
struct Draft;

/// The reference host: a list of the saved charts, and the editor for a new chart or for one of them.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// `folder` is where charts are saved; it is created with the first chart.
    explicit MainWindow(const QString& folder);
    ~MainWindow() override;

    /// The language of the window and of the editor: the code of one of `languages()`.
    void switchLanguage(const QString& language);

    /// Opens the folder, the chart or the file at each of `paths`; what cannot be opened is told.
    void openPaths(const QStringList& paths);
    QString folder() const { return m_folder; }

    void addChart();
    /// Asks what is to become of the edits that were not ended, the latest first.
    void offerDrafts();
    vardeno::testcharttools::VTestChartTools* editor() const { return m_editor; }
    EditSession* session() const { return m_session; }
    DeskOutput* output() const { return m_output; }
    DeskLibrary* library() const { return m_library; }
    DeskWalls* walls() const { return m_walls; }

Q_SIGNALS:
    /// Somebody has chosen this language.
    void languageSwitched(const QString& code);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void createMenus();
    QAction* createAction(const QKeySequence& shortcut, void (MainWindow::*slot)());
    void loadLanguages();
    QWidget* createListPage();
    QWidget* createEditorPage();
    void connectSession();
    void createOutput();
    void createLibrary();
    void createWalls();
    void updateActions();
    void addChartFrom(const vardeno::testcharttools::TestChartToolsData& record,
                      const vardeno::testcharttools::MarkerData& markers);
    void fitToEditor();
    void retranslate();

    void setFolder(const QString& folder);
    void chooseFolder();
    void openFolder(const QString& folder);
    void refresh();
    void showCount();
    void editSelectedChart();
    void openEditor();
    void chartSaved(const QString& imagePath);
    void editEnded(const QString& imagePath);
    void endEdit();
    void resumeDraft(const Draft& draft);
    QMessageBox* tell(const QString& what, const QString& details);

    QString m_folder;
    bool m_isClosing = false; ///< as soon as the edit has ended
    ToolkitTexts* m_toolkitTexts;
    QStackedWidget* m_pages;
    ChartList* m_list;
    QLabel* m_hint;
    vardeno::testcharttools::VTestChartTools* m_editor;
    EditSession* m_session;
    SaveQuestions* m_questions = nullptr;
    DeskOutput* m_output = nullptr;
    DeskLibrary* m_library = nullptr;
    DeskWalls* m_walls = nullptr;
    ListBar* m_listBar = nullptr;
    DraftOffer* m_drafts;
    QAction* m_new;
    QAction* m_edit;
    QAction* m_choose;
    QAction* m_refresh;
    QAction* m_quit;
    MarkerSwitch* m_markers;
    LanguageMenu* m_languages;
    ThemeMenu* m_themes;
    RecentFolders* m_recent;
    HelpMenu* m_help;
};
