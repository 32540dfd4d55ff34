#pragma once

#include "vdchartcore_export.h"

#include <QFont>
#include <QGlyphRun>
#include <QHash>
#include <QRawFont>
#include <QRect>
#include <QString>

class QPainter;

namespace vardeno::testcharttools {

/// Draws many short texts in one font, pixel for pixel as `QPainter::drawText` with a rectangle and alignment
/// flags would. What occurs in many of them is laid out once, and all of them are drawn together.
class VDCHARTCORE_EXPORT TextBatch
{
public:
    /// Draws with `painter`, in the font that it has now and the pen that it has when it draws.
    explicit TextBatch(QPainter& painter);

    /// Adds the text `head + tail`. Where many texts share their heads or their tails, that is what is laid
    /// out once.
    void add(const QRect& box, int alignment, const QString& head, const QString& tail = QString());

    /// Draws what was added.
    void draw();

private:
    struct LaidOut
    {
        QVector<quint32> glyphs;
        QVector<QPointF> positions;
        qreal width = 0;
        qreal overhang = 0; ///< of the last glyph beyond the width
        qreal height = 0;
        bool plain = false; ///< one line of glyphs of the batch's one font
    };
    /// Where a head and a tail meet.
    struct Joint
    {
        qreal gap = 0;          ///< what the tail is moved
        bool separable = false; ///< the tail has the glyphs that it has alone, and so has the head
    };
    const LaidOut& laidOut(const QString& text);
    LaidOut measured(const QString& text);
    Joint jointOf(const QString& head, const QString& tail);
    void append(const LaidOut& layout, const QPointF& at);

    QPainter& m_painter;
    QFont m_font;
    bool m_oneByOne; ///< large glyphs are filled as outlines, and lines are drawn along texts
    QRawFont m_rawFont;
    QHash<QString, LaidOut> m_layouts;
    QHash<QString, Joint> m_joints;
    QVector<quint32> m_glyphs;
    QVector<QPointF> m_positions;
};

} // namespace vardeno::testcharttools
