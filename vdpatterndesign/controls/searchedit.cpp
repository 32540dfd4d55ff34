#include "searchedit.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPointer>
#include <QStyle>

namespace vardeno::testcharttools {

namespace {

constexpr int extent = 20;
constexpr int hintAlpha = 170;

QPalette withFadedHint(QPalette palette)
{
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        QColor hint = palette.color(group, QPalette::Text);
        if (group != QPalette::Disabled)
            hint.setAlpha(hintAlpha);
        palette.setColor(group, QPalette::PlaceholderText, hint);
    }
    return palette;
}

} // namespace

class SearchEdit::Impl : public QObject
{
public:
    explicit Impl(SearchEdit* box);
    void arrange();
    void onEditingFinished();
    void onTextChanged(const QString& text);
    void onClearBtnClicked();
    void fadeHint();

    SearchEdit* box;
    QPointer<QWidget> leading;
    QLineEdit* line;
    QPushButton* clear;
    QHBoxLayout* row;
};

SearchEdit::Impl::Impl(SearchEdit* frame)
    : box(frame)
    , line(new QLineEdit(frame))
    , clear(new QPushButton(frame))
    , row(new QHBoxLayout(frame))
{
    line->setProperty("style", "transparent");
    clear->setProperty("imageBtn", "close");
    clear->setFixedSize(extent, extent);
    clear->setFlat(true);
    clear->setFocusPolicy(Qt::NoFocus);
    clear->setIcon(clear->style()->standardIcon(QStyle::SP_LineEditClearButton, nullptr, clear));
    clear->hide();
    connect(line, &QLineEdit::editingFinished, this, &Impl::onEditingFinished);
    connect(line, &QLineEdit::textChanged, this, &Impl::onTextChanged);
    connect(clear, &QPushButton::clicked, this, &Impl::onClearBtnClicked);
}

void SearchEdit::Impl::arrange()
{
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(line);
    row->addWidget(clear);
}

void SearchEdit::Impl::onEditingFinished()
{
    Q_EMIT box->editingFinished();
}

void SearchEdit::Impl::onTextChanged(const QString& text)
{
    Q_EMIT box->textChanged(text);
}

void SearchEdit::Impl::onClearBtnClicked()
{
    line->clear();
}

/// A style sheet gives the hint the colour of a text.
void SearchEdit::Impl::fadeHint()
{
    const QPalette palette = withFadedHint(line->palette());
    if (palette != line->palette())
        line->setPalette(palette);
}

SearchEdit::SearchEdit(QWidget* parent)
    : QPushButton(parent)
{
    setProperty("style", "editButton");
    setFixedHeight(extent);
    setFlat(true);
    setAutoDefault(false); // it is not to be pressed by Enter in a dialog
    d = std::make_unique<Impl>(this);
    d->arrange();
    d->line->installEventFilter(this);
    setFocusProxy(d->line);
}

SearchEdit::~SearchEdit() = default;

QLineEdit* SearchEdit::lineEdit() const
{
    return d->line;
}

void SearchEdit::setLeadingWidget(QWidget* widget)
{
    if (widget == d->leading)
        return;
    delete d->leading;
    d->leading = widget;
    if (widget)
        d->row->insertWidget(0, widget);
}

QWidget* SearchEdit::leadingWidget() const
{
    return d->leading;
}

QSize SearchEdit::sizeHint() const
{
    return {d->row->sizeHint().width(), extent};
}

bool SearchEdit::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == d->line && d->line->hasFocus())
        d->clear->show();
    if (watched == d->line && (event->type() == QEvent::StyleChange || event->type() == QEvent::Polish))
        QMetaObject::invokeMethod(d.get(), &Impl::fadeHint, Qt::QueuedConnection);
    return QPushButton::eventFilter(watched, event);
}

} // namespace vardeno::testcharttools
