#include "controls/caption.h"

#include "support/translation.h"

#include <QAbstractButton>
#include <QLabel>

namespace vardeno::testcharttools {

namespace {

constexpr int fixedFontSize = 12;

template <typename Widget>
void showElidedOn(Widget* widget, const QString& text, int margin)
{
    const int room = widget->width() - margin;
    const QFontMetrics metrics = widget->fontMetrics();
    const bool fits = metrics.boundingRect(text).width() <= room;
    widget->setText(fits ? text : metrics.elidedText(text, Qt::ElideRight, room));
    widget->setToolTip(fits ? QString() : text);
}

} // namespace

void showElided(QLabel* label, const QString& text, int margin)
{
    showElidedOn(label, text, margin);
}

void showElided(QAbstractButton* button, const QString& text, int margin)
{
    showElidedOn(button, text, margin);
}

void useFixedFont(QAbstractButton* button)
{
    QFont font = button->font();
    font.setPixelSize(fixedFontSize);
    button->setFont(font);
}

void CaptionSet::add(QLabel* label, const QString& source, int margin)
{
    add(source, [label, margin](const QString& text) { showElided(label, text, margin); });
}

void CaptionSet::add(QAbstractButton* button, const QString& source, int margin)
{
    add(source, [button, margin](const QString& text) { showElided(button, text, margin); });
}

void CaptionSet::add(const QString& source, std::function<void(const QString& text)> show)
{
    m_captions.push_back({source, std::move(show)});
}

void CaptionSet::retranslate() const
{
    for (const Caption& caption : m_captions)
        caption.show(translated(caption.source));
}

} // namespace vardeno::testcharttools
