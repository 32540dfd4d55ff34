#include "layers/textbatch.h"

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

/// Text of plain ASCII characters, each of which has a glyph of its own.
bool isSimple(const QString& text)
{
    return std::all_of(text.begin(), text.end(),
                       [](QChar c) { return c.unicode() > 0x20 && c.unicode() < 0x7f; });
}

} // namespace

TextBatch::TextBatch(QPainter& painter)
    : m_painter(painter)
    , m_font(painter.font())
    , m_oneByOne(QFontInfo(m_font).pixelSize() >= outlineSize || m_font.underline() || m_font.overline() ||
                 m_font.strikeOut())
{
}

void TextBatch::add(const QRect& box, int alignment, const QString& head, const QString& tail)
{
    if (m_oneByOne) {
        m_painter.drawText(box, alignment, head + tail);
        return;
    }
    const bool joined = !head.isEmpty() && !tail.isEmpty();
    const Joint joint = joined ? jointOf(head, tail) : Joint();
    if (joined && !joint.separable) {
        add(box, alignment, head + tail);
        return;
    }
    const LaidOut first = laidOut(head);
    const LaidOut second = laidOut(tail);
    const qreal width = first.width + joint.gap + second.width;
    const qreal height = first.height;
    const QPointF at(box.x() + shift(alignment, Qt::AlignRight, Qt::AlignHCenter, box.width(), width),
                     box.y() + shift(alignment, Qt::AlignBottom, Qt::AlignVCenter, box.height(), height));
    const qreal inkWidth = width + (tail.isEmpty() ? first : second).overhang;
    const bool fits = !box.isEmpty() && inkWidth <= box.width() && height <= box.height();
    if (!first.plain || !second.plain || !fits) {
        draw();                                          // what was added first lies below
        m_painter.drawText(box, alignment, head + tail); // clips what sticks out of the box
        return;
    }
    append(first, at);
    append(second, at + QPointF(first.width + joint.gap, 0));
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
    result.plain = text.isEmpty();
    if (!isSimple(text) || runs.size() != 1)
        return result;
    if (!m_rawFont.isValid())
        m_rawFont = runs.first().rawFont();
    result.plain = runs.first().rawFont() == m_rawFont;
    result.glyphs = runs.first().glyphIndexes();
    result.positions = runs.first().positions();
    return result;
}

/// A font may have other glyphs for a digit that follows a letter. Heads that end alike are taken to do the
/// same, if they have letters or if they have none, and to all tails that begin alike.
TextBatch::Joint TextBatch::jointOf(const QString& head, const QString& tail)
{
    const bool letters = std::any_of(head.begin(), head.end(), [](QChar c) { return c.isLetter(); });
    const QString key = QString(QLatin1Char(letters ? 'A' : '1')) + head.back() + tail.front();
    const auto known = m_joints.constFind(key);
    if (known != m_joints.cend())
        return *known;
    const LaidOut whole = measured(head + tail);
    const LaidOut first = laidOut(head);
    const LaidOut second = laidOut(tail);
    Joint joint;
    joint.gap = whole.width - first.width - second.width;
    QVector<QPointF> positions = first.positions;
    for (const QPointF& position : second.positions)
        positions.append(position + QPointF(first.width + joint.gap, 0));
    joint.separable =
        whole.plain && whole.glyphs == first.glyphs + second.glyphs && whole.positions == positions;
    return *m_joints.insert(key, joint);
}

} // namespace vardeno::testcharttools
