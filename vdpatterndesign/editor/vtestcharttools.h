#pragma once

#include "testcharttoolsdata.h"
#include "vdpatterndesign_export.h"

#include <QImage>
#include <QWidget>

#include <memory>
#include <vector>

class QPushButton;

namespace vardeno::testcharttools {

class ChartPreview;
class EditHistory;
class PaintPicLogoWidget;

/// The test chart editor that a host embeds: the live chart on the left, the settings on the right, the edit
/// buttons below. 1610 x 803 pixels.
///
/// The host sets the folder to save into, the mode (a new chart, or replacing one) and, when replacing, the
/// stored record; the user edits; `sigTestToolEditDone` tells how the edit ended. Everything runs on the GUI
/// thread; only the writing of an image file has a thread of its own. Nothing is thrown across this boundary.
class VDPATTERNDESIGN_EXPORT VTestChartTools : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool saveButtonsFollowState READ saveButtonsFollowState WRITE setSaveButtonsFollowState)
    Q_PROPERTY(bool wheelScrollsPanels READ wheelScrollsPanels WRITE setWheelScrollsPanels)
    Q_PROPERTY(bool markersShown READ markersShown WRITE setMarkersShown)
    Q_PROPERTY(bool liveSliders READ liveSliders WRITE setLiveSliders)
    Q_PROPERTY(bool typingGoesOn READ typingGoesOn WRITE setTypingGoesOn)
    Q_PROPERTY(bool promptPreview READ promptPreview WRITE setPromptPreview)
    Q_PROPERTY(bool calmLock READ calmLock WRITE setCalmLock)
    Q_PROPERTY(bool smallPng READ smallPng WRITE setSmallPng)
    Q_PROPERTY(bool followsHost READ followsHost WRITE setFollowsHost)
    Q_PROPERTY(bool zoomablePreview READ zoomablePreview WRITE setZoomablePreview)
    Q_PROPERTY(bool undoKeys READ undoKeys WRITE setUndoKeys)

public:
    explicit VTestChartTools(QWidget* parent = nullptr);
    ~VTestChartTools() override;

    /// The chart as it is shown.
    TestChartToolsData getTestChartToolsData();
    /// Shows `data`. Values outside a control's range are cut to it. While `isShowForAdd()`, the colour bar
    /// gets its default colours instead of the record's.
    void setTestChartToolsData(TestChartToolsData data);

    /// Shows `record` as `setTestChartToolsData` does, and then gives every layer every value that the
    /// controls show. The picture is decided by the record alone, whatever was shown before; where it chooses
    /// neither of two patterns or logos, or no way of labelling, it is the default one. The colour bar of a
    /// chart that is being added (`isShowForAdd()`) has its default colours here, too: a host that starts a
    /// new chart from a record of its own applies it first, and calls `setShowForAdd(true)` then.
    void applyRecord(const TestChartToolsData& record);

    /// Shows `record`, with its own colour bar in any mode, as the outcome of the change that the user has
    /// just made: for a host that completes changes. One `undo` takes back both.
    void amendRecord(const TestChartToolsData& record);

    /// Undo and redo of what the user changes, of this tool's life.
    EditHistory* history() const;
    /// Whether Ctrl+Z undoes and Ctrl+Shift+Z and Ctrl+Y redo wherever in the tool the focus is. In an entry
    /// they then do so, too, and take back what is being typed. Off, at first, an entry's keys are its own.
    /// Shortcuts of the host come first.
    bool undoKeys() const;
    void setUndoKeys(bool on);

    /// The composed chart in the size of its resolution, opaque, as it is saved.
    QImage chartImage();

    /// `root`: the folder below which every saved chart gets a folder of its own. `name`: for
    /// `slotSaveImage`.
    void setSavePath(const QString& root, const QString& name);
    /// The full path of the image that a replacement supersedes; its folder is removed after the replacement.
    void setLastSavePath(const QString& path);
    /// The file name, with its ending, of the chart that is being replaced.
    void setCurrentEditNum(const QString& name);
    /// The number in the file name of a new chart.
    void setTestImageNum(int number);
    /// While set, the layers' paint reports are ignored.
    void setUpdateFlag(bool updating);

    /// The full path of the image that `sigFail` was last sent for, empty before the first failure.
    QString failedPath() const;
    /// Why it could not be written, a sentence in the language that was current then: no permission, no
    /// space, no folder, something in the way, or what the system says.
    QString failedReason() const;

    /// True to add a new chart, false (at first) to replace one.
    void setShowForAdd(bool add);
    bool isShowForAdd() const;
    /// Enables or disables the save, add confirm and apply buttons. Disabled tells that there is nothing to
    /// save. Enabling brings the replacement's Confirm back as well, which a failed save has left disabled.
    void updateShowSaveBtnStatus(bool enabled);

    /// Whether the edit buttons always tell what may be done. Off, at first, the end of every repaint enables
    /// them all, whatever `updateShowSaveBtnStatus` was told, and a failed save leaves those that were
    /// pressed disabled until something changes. On, Confirm and Apply work while the tool is idle and
    /// something is unsaved, after a failure as well; the replacement's Confirm works with nothing unsaved,
    /// too.
    bool saveButtonsFollowState() const;
    void setSaveButtonsFollowState(bool follows);

    /// Whether every cabinet has a coded marker, which photographs of the wall are read by. It is no part of
    /// the record: a host takes it from the record's document (`ChartRecordFile::markersOf`). Off at first.
    bool markersShown() const;
    void setMarkersShown(bool shown);

    /// Whether the chart follows a slider while it is dragged, as fast as it can be drawn. Off, at first, it
    /// follows when the slider is released.
    bool liveSliders() const;
    void setLiveSliders(bool live);
    /// Whether the preview shows a change as soon as it can be drawn. Off, at first, it does so a tenth of a
    /// second later, when the layers have painted.
    bool promptPreview() const;
    void setPromptPreview(bool prompt);
    /// Whether controls that are locked while the chart is repainted look so only when that takes longer than
    /// 0.4 s. Off, at first, they look so at once. They are locked in the same way.
    bool calmLock() const;
    void setCalmLock(bool calm);

    /// Whether the text entry that has the focus takes text while the other controls are locked, which input
    /// methods need: what they are composing is lost where the entry is locked. Off, at first, it is locked
    /// with the others, and the keys that arrive meanwhile are its at the end.
    bool typingGoesOn() const;
    void setTypingGoesOn(bool goesOn);
    /// Whether charts are saved as small PNG files, on all cores: see `SaveImageThread::setSmallPng`. Off at
    /// first.
    bool smallPng() const;
    void setSmallPng(bool small);
    /// Whether the tool takes the size that its host gives it, from 660 x 300 pixels on: the chart has the
    /// room that the settings leave, and no caption or value of theirs is cut in whatever font. Off, at
    /// first, it has its one size.
    bool followsHost() const;
    void setFollowsHost(bool follows);
    /// Whether the preview zooms: see `ChartPreview`. The zoom, and what is under the pointer, then stand
    /// below it. Off, at first, all of the chart is shown.
    bool zoomablePreview() const;
    void setZoomablePreview(bool zooms);
    /// Where the chart is shown, of this tool's life.
    ChartPreview* preview() const;

    /// The layer of the picture logo, of this tool's life: its `sigLogoRefused` tells why a picture that the
    /// user has chosen was not taken.
    PaintPicLogoWidget* pictureLogo() const;

    /// Hides the preview.
    void hideViewWidget();

    /// Whether the wheel scrolls the settings, unless the entry, choice or slider under it has the focus.
    /// False (at first): the wheel changes the control that it turns over.
    void setWheelScrollsPanels(bool scrolls);
    bool wheelScrollsPanels() const;

    /// The host's main window, in global pixels: the colour picker stays in it.
    void setMoveRange(const QRect& range);
    /// Lays the theme file `themeFile`, if there is one, over the current theme and styles the editor with
    /// the
    /// "*.qss" beside it, or with the compiled-in one. The colours of a process are those of its first theme.
    void setTestChartToolsStyleSheet(const QString& themeFile);
    /// Hides the colour picker.
    void closeColorDialog();

    /// Loads language files, in order, into the process's translator; a file that cannot be loaded is passed
    /// over with a warning. `ChartLanguages` has the library's own.
    void loadLanguageFiles(const std::vector<QString>& files);
    /// Switches the process's language and shows all texts of this tool in it.
    void switchLanguage(const QString& language);
    /// Shows all texts in the current language.
    void translateLanguage();

Q_SIGNALS:
    /// A chart image was written. `data` is the tool's own record in a direct connection, a copy in a queued
    /// one.
    void sigSave(TestChartToolsData& data);
    /// An edit has ended; `fileName` is the full path of the image, empty where none was written.
    void sigTestToolEditDone(TestChartToolsData data, QString fileName, EditType type);
    /// An image could not be written: `failedPath()` tells which, `failedReason()` why.
    void sigFail();

public Q_SLOTS:
    /// Fits the layers to the resolution that is set, and the preview to its area.
    void slotGetHeightWidth();
    /// Saves the chart as "<root>/<name>.png", without ending the edit.
    void slotSaveImage();
    void slotCancleButtonClicked();
    void slotAddConfirmButtonClicked();
    void slotReplaceConfirmButtonClicked();
    void slotReplaceApplyButtonClicked();
    /// The screen's cabinet rows or columns have changed.
    void slotUpdateRow(int row);
    void slotUpdateCol(int col);
    /// Tells the custom text panel the resolution that is set.
    void slotUpdateResolution();
    /// Marks the chart as changed.
    void slotSaveBtnLight();
    /// The host's main window has moved by `movePos` and now is `globalRect`.
    void slotMainWindowMove(const QRect& globalRect, const QPoint& movePos);
    /// Opens the colour picker for the colour of `button`; it exists only where this widget had a grandparent
    /// when it was built. Null does nothing.
    void slotShowColorDialog(QPushButton* button);
    /// Gives the colour that is being picked its new value; dropped while the chart is being repainted.
    void slotColorSelected(const QColor& color);
    /// Gives the colour that is being picked its old value back.
    void slotColorDialogRejected();
    /// A colour to be added has been chosen.
    void slotDialogAccepted(QColor color);
    /// A layer has painted; `senderName` identifies it.
    void slotUpdatePaintEventStatus(QString senderName);

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace vardeno::testcharttools
