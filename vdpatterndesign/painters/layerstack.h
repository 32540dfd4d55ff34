#pragma once

#include "layerpainter.h"

#include <QImage>
#include <QSize>

#include <vector>

class QGridLayout;
class QStackedWidget;

namespace vardeno::testcharttools {

/// One layer of the chart in the stack.
struct Layer
{
    int number;             ///< in the paint status
    const char* memberName; ///< identifies the layer's paint reports
    const char* doneText;   ///< logged for each of them
    bool awaited;           ///< whether a repaint is complete only with this layer's report
    bool shared;            ///< one of the layers that share a place in the stack, of which one is visible
    LayerPainter* (*create)();
};

/// The layers of the chart, bottom to top. A layer is added to the chart by a line here; its number is its
/// own.
std::vector<Layer>& layerTable();
/// The same, for all who only read it.
const std::vector<Layer>& chartLayers();

/// The painters of all layers, stacked in one hidden view of the chart's full resolution.
class LayerStack
{
public:
    /// The view becomes a window of its own below `owner`, so that nothing that shows `owner` shows it.
    explicit LayerStack(QWidget* owner);

    /// The chart's resolution in pixels.
    void setChartSize(const QSize& size);
    QSize chartSize() const;

    /// The composed chart at full resolution, opaque (RGB32). All visible painters paint, and report,
    /// meanwhile.
    QImage image() const;
    /// The same, in `image`, whose memory is used again where its size and format are those of the chart and
    /// no one else holds it.
    void compose(QImage& image) const;

    /// Held, the layers only note that something has changed; each renders once when they are let go, if need
    /// be.
    void setHeld(bool held);

    /// Holds the layers that share a place.
    QStackedWidget* sharedPlace() const { return m_sharedPlace; }

    /// By position in `chartLayers()`.
    LayerPainter* painter(std::size_t layer) const { return m_painters[layer]; }

    template <typename Painter>
    Painter* find() const
    {
        for (LayerPainter* painter : m_painters) {
            if (auto* found = qobject_cast<Painter*>(painter))
                return found;
        }
        return nullptr;
    }

private:
    void stack(QGridLayout* cell, const Layer& layer);
    std::vector<LayerPainter*> shownPainters() const;

    QWidget* m_view;
    QStackedWidget* m_sharedPlace = nullptr;
    std::vector<LayerPainter*> m_painters;
};

} // namespace vardeno::testcharttools
