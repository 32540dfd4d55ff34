#pragma once

#include "referencelayer.h"

#include <QImage>

#include <string>

namespace vardeno::testcharttools {

/// The picture logo, loaded from its file for every rendering.
class ReferencePictureLogo : public ReferenceLayer
{
    Q_OBJECT

public:
    void setPicPath(const std::string& path) { assign(m_picPath, path); }
    void setPosition(int index) { assign(m_position, index); }
    void setMoveX(int pixels) { assign(m_moveX, pixels); }
    void setMoveY(int pixels) { assign(m_moveY, pixels); }
    void setOpacity(int percent);
    void setScale(int percent);

    /// Draws on the layer itself, which has an effect only during a paint event.
    void renderLayer() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool draw(QPainter& painter) override;

private:
    QPoint anchor() const;
    QPoint place() const;

    int m_moveX = 0;
    int m_moveY = 0;
    float m_scale = 1.0F;
    float m_opacity = 1.0F;
    std::string m_picPath;
    int m_position = 0;
    QPixmap m_scaled;
    bool m_painting = false;
};

/// The text logo.
class ReferenceTextLogo : public ReferenceLayer
{
    Q_OBJECT

public:
    void setText(const QString& text) { assign(m_text, text); }
    void setTextColor(const QColor& color) { assign(m_color, color); }
    void setTextSize(int pixels) { assign(m_textSize, pixels); }
    void setOpacity(int percent) { assign(m_opacity, percent); }
    void setPosition(int index) { assign(m_position, index); }
    void setMoveX(int pixels) { assign(m_moveX, pixels); }
    void setMoveY(int pixels) { assign(m_moveY, pixels); }

protected:
    bool draw(QPainter& painter) override;
    void showEvent(QShowEvent* event) override;

private:
    struct Extent;
    QPoint anchor(const Extent& text) const;
    QPoint place(const Extent& text) const;

    int m_opacity = 100;
    int m_moveX = 0;
    int m_moveY = 0;
    int m_textSize = 100;
    QColor m_color = Qt::black;
    QString m_text = QStringLiteral("VardenoRT5Pro");
    int m_position = 0;
};

} // namespace vardeno::testcharttools
