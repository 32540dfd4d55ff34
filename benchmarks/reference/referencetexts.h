#pragma once

#include "referencelayer.h"

namespace vardeno::testcharttools {

/// The custom text and the information line.
class ReferenceTexts : public ReferenceLayer
{
    Q_OBJECT

public:
    void setSelfTextVisible(bool visible) { assign(m_selfTextVisible, visible); }
    void setSelfText(const QString& text) { assign(m_selfText, text); }
    void setSelfTextColor(const QColor& color) { assign(m_selfTextColor, color); }
    void setSelfTextSize(ushort pixelSize) { assign(m_selfTextSize, pixelSize); }
    void setResolutionVisible(bool visible) { assign(m_resolutionVisible, visible); }
    void setResolutionColor(const QColor& color) { assign(m_resolutionColor, color); }
    void setResolutionSize(ushort pixelSize) { assign(m_resolutionSize, pixelSize); }
    void setBoxNumVisible(bool visible) { assign(m_boxNumVisible, visible); }
    void setBoxNumColor(const QColor& color) { assign(m_boxNumColor, color); }
    void setRows(ushort rows) { assign(m_rows, rows); }
    void setColumns(ushort columns) { assign(m_columns, columns); }
    /// The captions of the information line, translated.
    void setCaptions(const QString& resolution, const QString& boxNum);

protected:
    bool draw(QPainter& painter) override;
    void showEvent(QShowEvent* event) override;

private:
    QString infoText() const;
    /// Draws `text` with its baseline half its height and `below` under the origin.
    void drawLine(QPainter& painter, const QString& text, int requested, const QColor& color,
                  int below) const;

    bool m_selfTextVisible = true;
    bool m_boxNumVisible = true;
    bool m_resolutionVisible = true;
    QString m_selfText = QStringLiteral("www.example.com");
    QColor m_selfTextColor = Qt::black;
    QColor m_boxNumColor = Qt::black;
    QColor m_resolutionColor = Qt::black;
    ushort m_selfTextSize = 70;
    ushort m_resolutionSize = 50;
    ushort m_rows = 9;
    ushort m_columns = 16;
    QString m_resolutionCaption;
    QString m_boxNumCaption;
};

} // namespace vardeno::testcharttools
