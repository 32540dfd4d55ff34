#pragma once

#include <vtestcharttools.h>

#include <QFileSystemWatcher>
#include <QJsonObject>
#include <QMainWindow>

class QAction;
class QActionGroup;
class QLabel;
class QListWidget;
class QListWidgetItem;
class QStackedWidget;

/// The reference host: a list of the saved charts, and the editor for a new chart or for one of them.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// `folder` is where charts are saved; it is created with the first chart.
    explicit MainWindow(const QString& folder);

    /// The language of the window and of the editor: the code of one of `languages()`.
    void switchLanguage(const QString& language);

    void addChart();
    vardeno::testcharttools::VTestChartTools* editor() const { return m_editor; }

private:
    void createActions();
    void loadLanguages();
    QWidget* createListPage();
    QWidget* createEditorPage();
    void fitToEditor();
    void retranslate();

    void setFolder(const QString& folder);
    void chooseFolder();
    void listCharts();
    void selectChart(const QString& imagePath);
    void loadNextThumbnail();
    void editChart(const QString& imagePath);
    void editSelectedChart();
    void openEditor();
    void finishEdit(const vardeno::testcharttools::TestChartToolsData& record, const QString& imagePath,
                    vardeno::testcharttools::EditType type);
    void storeRecord(vardeno::testcharttools::TestChartToolsData record, const QString& imagePath);
    bool takePictureAlong(vardeno::testcharttools::TestChartToolsData& record, const QString& imagePath);
    void tellOfFailure(const QString& what, const QString& details);

    QString m_folder;
    QString m_editedImage;     ///< the chart that is being replaced, empty for a new one
    QString m_supersededImage; ///< replaced, and about to disappear from the disk
    QJsonObject m_document;    ///< the edited chart's record file as it was read, empty for a new one
    QFileSystemWatcher m_watcher;
    QStackedWidget* m_pages;
    QListWidget* m_list;
    QLabel* m_hint;
    vardeno::testcharttools::VTestChartTools* m_editor;
    QAction* m_new;
    QAction* m_edit;
    QAction* m_choose;
    QAction* m_quit;
    QActionGroup* m_languages;
};
