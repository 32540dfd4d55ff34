#pragma once

#include <QString>

#include <functional>
#include <vector>

class QAbstractButton;
class QLabel;

namespace vardeno::testcharttools {

/// Shows `text` on a label or a button of fixed width. A text wider than the widget's width less `margin` is
/// elided on the right, and the full text becomes the tool tip; a text that fits clears the tool tip.
void showElided(QLabel* label, const QString& text, int margin = 0);
void showElided(QAbstractButton* button, const QString& text, int margin = 0);

/// Gives a button of fixed size, whose English caption is to be shown whole, a font of a fixed size as well:
/// 12 pixels, whatever the host's.
void useFixedFont(QAbstractButton* button);

/// The captions of a panel: each the English source text and the widget that shows its translation.
class CaptionSet
{
public:
    void add(QLabel* label, const QString& source, int margin = 0);
    void add(QAbstractButton* button, const QString& source, int margin = 0);
    /// `show` is called with the translated text.
    void add(const QString& source, std::function<void(const QString& text)> show);

    /// Shows every caption in the current language, in the order in which they were added.
    void retranslate() const;

private:
    struct Caption
    {
        QString source;
        std::function<void(const QString& text)> show;
    };
    std::vector<Caption> m_captions;
};

} // namespace vardeno::testcharttools
