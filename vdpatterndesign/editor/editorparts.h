#pragma once

#include "chartpreview.h"
#include "edithistory.h"
#include "editor/colorpicking.h"
#include "editor/editorpanels.h"
#include "editor/livesliders.h"
#include "editor/repaintcycle.h"
#include "painters/layerstack.h"
#include "testcharttoolsdata.h"

#include <memory>

namespace vardeno::testcharttools {

class ChartSaver;
class PreviewBar;
class VTestChartTools;

/// What the editor is made of, how it is built and wired, and what its parts do together.
class EditorParts : public QObject
{
public:
    /// Builds all of it in `tool`.
    explicit EditorParts(VTestChartTools* tool);
    ~EditorParts() override;

    /// Whether the tool takes the size that its host gives it.
    bool followsHost() const { return m_followsHost; }
    void setFollowsHost(bool follows);
    /// What the host has given it; also for after a change of font or language.
    void fitToHost();
    void setZooms(bool zooms);
    void retranslate();

    /// The layers take the resolution that is set, and the preview its place.
    void fitToResolution();
    /// The chart has changed.
    void captureAndDisplay() { cycle.start(); }
    /// Has the chart saved as one that is edited like that, in the place of the chart named `replaced`.
    void save(EditType type, const QString& replaced);

    TestChartToolsData shownRecord() const;
    /// Shows `data`; a chart that is being added gets the default colours in its colour bar.
    void push(const TestChartToolsData& data);
    /// The same, and then gives every layer what the panels show.
    void apply(const TestChartToolsData& data);
    /// The same with the record's own colour bar in any case.
    void applyWhole(const TestChartToolsData& data);
    void showMarkers(bool shown);

    LayerStack layers;
    EditorPanels panels;
    ChartPreview* preview = nullptr;
    EditButtons* buttons = nullptr;
    TestChartToolsData record; ///< as it was last pushed or collected
    bool showForAdd = false;
    bool updating = false; ///< the layers' reports are those of no repaint
    RepaintCycle cycle;
    LiveSliders liveSliders;
    ColorPicking picking;
    EditHistory history;
    std::unique_ptr<ChartSaver> saver;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void build();
    void fitLater();
    QWidget* createViewColumn();
    void connectButtons();
    void connectPanels();
    void connectColorDialog();
    void connectReports();
    void takeSnapshot();

    VTestChartTools* m_tool;
    PreviewBar* m_previewBar = nullptr;
    bool m_followsHost = false;
    bool m_fitting = false; ///< once the current event has been dealt with
};

} // namespace vardeno::testcharttools
