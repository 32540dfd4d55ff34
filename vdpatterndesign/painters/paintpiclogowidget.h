#pragma once

#include "layerpainter.h"

#include <memory>
#include <string>

namespace vardeno::testcharttools {

/// The picture logo of the chart.
///
/// The picture file is decoded again only when it has changed; what is seen is always what a fresh load would
/// give. A file that is missing, unreadable, or larger than 3840 x 3840 pixels shows nothing.
class VDPATTERNDESIGN_EXPORT PaintPicLogoWidget : public LayerPainter
{
    Q_OBJECT
    Q_PROPERTY(bool hostTellsRefusals READ hostTellsRefusals WRITE setHostTellsRefusals)

public:
    explicit PaintPicLogoWidget(QWidget* parent = nullptr);
    ~PaintPicLogoWidget() override;

    /// The full path of the picture, UTF-8.
    void setPicPath(std::string path);
    std::string picPath() const;
    /// Whether the path is the built-in picture's.
    bool showsDefaultPicLogo() const;

    /// The anchor: 0 centre, 1 left up, 2 left down, 3 right up, 4 right down.
    void setPosition(int index);
    /// The user's shift from the anchor, chart pixels; the picture stays on the chart.
    void setMoveX(int pixels);
    void setMoveY(int pixels);
    /// What the last render left of the shift.
    int appliedMoveX() const;
    int appliedMoveY() const;

    void setOpacity(int percent);
    void setScale(int percent);

    /// Shows the built-in picture, `defaultLogo()`.
    void setDefaultPicLogo();

    /// Lets the user choose a picture, copies it into the application's data folder as PNG data under its own
    /// name, upright where the file says how the camera was held, and shows it. An unreadable file is told in
    /// a message box; a picture that is too large is refused without a word to the user. The host hears of
    /// both.
    void uploadPicLogo();

    /// Whether the host tells its user of refused pictures. Off, at first, there is the message box for an
    /// unreadable file. On, there is `sigLogoRefused` alone, and ".jpeg" is among the endings to choose from.
    bool hostTellsRefusals() const;
    void setHostTellsRefusals(bool tells);

    /// Looks up the title of the file dialog in the current language.
    void translateTitle();

Q_SIGNALS:
    void sigMoveXY(int x, int y);
    /// The user has chosen the file `path`, and it could not be taken: `reason` is a sentence in the current
    /// language, `size` that of the picture as far as it is known, `limit` the largest that is taken, in
    /// pixels.
    void sigLogoRefused(const QString& path, const QString& reason, const QSize& size, const QSize& limit);

protected:
    bool beginPicture() override;
    void addTo(Composition& chart) override;
    bool sourceChanged() const override;

private:
    void refuse(const QString& path);

    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace vardeno::testcharttools
