#include "common/textbatch.h"

#include <QFontInfo>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>

namespace vardeno::testcharttools {

namespace {

constexpr int outlineSize = 64; ///< pixels

/// How far a length of `length` is moved into a box of `room`.
qreal shift(int alignment, int farEdge, int centre, int room, qreal length)
{
    if (alignment & farEdge)
        return room - length;
    return alignment & centre ? (room - length) / 2 : 0;
}

/// Text whose glyphs do not depend on their neighbours, except in their distance.
bool isSimple(const QString& text)
{
    return std::all_of(text.begin(), text.end(),
                       [](QChar c) { return c.unicode() > 0x20 && c.unicode() < 0x7f; });
}

} // namespace

TextBatch::TextBatch(QPainter& painter)
    : m_painter(painter)
    , m_font(painter.font())
    , m_outlines(QFontInfo(m_font).pixelSize() >= outlineSize)
{
}

void TextBatch::add(const QRect& box, int alignment, const QString& head, const QString& tail)
{
    const LaidOut first = laidOut(head);
    const bool joined = !tail.isEmpty();
    const LaidOut second = joined ? laidOut(tail) : LaidOut();
    const qreal gap = joined && !head.isEmpty() ? kerning(head.back(), tail.front()) : 0;
    const qreal width = first.width + gap + second.width;
    const qreal height = first.height;
    const QPointF at(box.x() + shift(alignment, Qt::AlignRight, Qt::AlignHCenter, box.width(), width),
                     box.y() + shift(alignment, Qt::AlignBottom, Qt::AlignVCenter, box.height(), height));
    const qreal inkWidth = width + (joined ? second : first).overhang;
    const bool fits = !box.isEmpty() && inkWidth <= box.width() && height <= box.height();
    const bool plain = first.plain && (!joined || second.plain);
    if (!plain || !fits) {
        draw();                                          // what was added first lies below
        m_painter.drawText(box, alignment, head + tail); // clips what sticks out of the box
        return;
    }
    append(first, at);
    append(second, at + QPointF(first.width + gap, 0));
}

void TextBatch::draw()
{
    if (m_glyphs.isEmpty())
        return;
    QGlyphRun run;
    run.setRawFont(m_rawFont);
    run.setGlyphIndexes(m_glyphs);
    run.setPositions(m_positions);
    m_painter.drawGlyphRun(QPointF(), run);
    m_glyphs.clear();
    m_positions.clear();
}

void TextBatch::append(const LaidOut& layout, const QPointF& at)
{
    m_glyphs += layout.glyphs;
    for (const QPointF& position : layout.positions)
        m_positions.append(at + position);
}

const TextBatch::LaidOut& TextBatch::laidOut(const QString& text)
{
    const auto known = m_layouts.constFind(text);
    return known != m_layouts.cend() ? *known : *m_layouts.insert(text, measured(text));
}

/// In the way in which `drawText` lays a single line out.
TextBatch::LaidOut TextBatch::measured(const QString& text)
{
    QTextLayout layout(text, m_font);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    LaidOut result;
    if (line.isValid()) {
        line.setLineWidth(0x01000000);
        line.setPosition(QPointF());
        result.width = line.horizontalAdvance();
        result.overhang = line.naturalTextWidth() - result.width;
        result.height = line.ascent() + line.descent();
    }
    layout.endLayout();

    const QList<QGlyphRun> runs = layout.glyphRuns();
    if (m_outlines || !isSimple(text) || runs.size() != 1)
        return result;
    if (!m_rawFont.isValid())
        m_rawFont = runs.first().rawFont();
    result.plain = runs.first().rawFont() == m_rawFont;
    result.glyphs = runs.first().glyphIndexes();
    result.positions = runs.first().positions();
    return result;
}

/// What `right` moves when it stands behind `left`.
qreal TextBatch::kerning(QChar left, QChar right)
{
    const QString pair = QString(left) + right;
    const auto known = m_kernings.constFind(pair);
    if (known != m_kernings.cend())
        return *known;
    const qreal moved = measured(pair).width - measured(left).width - measured(right).width;
    return *m_kernings.insert(pair, moved);
}

} // namespace vardeno::testcharttools
