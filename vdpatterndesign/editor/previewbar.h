#pragma once

#include "controls/caption.h"

#include <QWidget>

#include <vector>

class QColor;
class QLabel;
class QPushButton;

namespace vardeno::testcharttools {

class ChartPreview;

/// The zoom of the preview with its buttons, and what is under the pointer there. What it has no room for,
/// from the right, is not seen.
class PreviewBar : public QWidget
{
public:
    PreviewBar(ChartPreview* preview, QWidget* parent);

    void retranslate();
    /// Gives everything the room that it needs in the font that the bar has.
    void fit();

    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QPushButton* addButton(const QString& text, const QString& name, void (ChartPreview::*slot)());
    QLabel* addReadout(const char* objectName, const QString& widest);
    void place();
    void showScale(double scale);
    void showPointed(const QPoint& pixel, const QColor& color, const QString& cabinet);

    struct Part
    {
        QWidget* widget;
        QString widest; ///< text; empty for a button
        int gap;        ///< behind it
    };

    ChartPreview* m_preview;
    CaptionSet m_captions;
    std::vector<Part> m_parts; ///< from left to right
    QLabel* m_scale;
    QLabel* m_pixel;
    QLabel* m_color;
    QLabel* m_cabinet;
};

} // namespace vardeno::testcharttools
