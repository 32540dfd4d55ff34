#include "vlineedit.h"

#include "controls/expression.h"
#include "controls/expressionvalidator.h"
#include "controls/wheelnotches.h"
#include "lineedit.h"
#include "vundocommand.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QStyle>
#include <QUndoStack>
#include <QWheelEvent>

#include <cmath>
#include <functional>
#include <optional>
#include <utility>

namespace vardeno::testcharttools {

namespace {

constexpr double zeroRange = 1e-12;

bool isEnter(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

QLabel* label(const char* objectName, QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setIndent(3); // off its neighbour
    label->setObjectName(QLatin1String(objectName));
    return label;
}

QPushButton* clearButton(QWidget* parent)
{
    auto* button = new QPushButton(parent);
    button->setObjectName(QStringLiteral("btnclear"));
    button->setFixedSize(16, 16);
    button->setFlat(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setCursor(Qt::PointingHandCursor);
    button->setIcon(button->style()->standardIcon(QStyle::SP_LineEditClearButton, nullptr, button));
    return button;
}

QFrame* underLine(QWidget* parent)
{
    auto* line = new QFrame(parent);
    line->setObjectName(QStringLiteral("VUnderLine"));
    line->setFrameStyle(int(QFrame::HLine) | int(QFrame::Plain));
    line->setMaximumHeight(1);
    return line;
}

} // namespace

/// What undo and redo bring back.
struct VLineEdit::Entry
{
    QString text;
    QString lastText;
    double value;
    int cursor;
};

class VLineEdit::Impl
{
public:
    explicit Impl(VLineEdit* control);
    Entry entry() const { return {shown, lastText, value, cursorPosition}; }
    bool isEvaluating() const { return numberMode && !inputLocked; }
    bool isValid(double candidate) const;
    std::optional<double> accepted(const QString& text) const;
    Entry settled() const;
    bool refuses(const QString& text) const;
    void forgetHistory();

    double value = 0;
    bool readOnly = false;
    bool numberMode = true;
    bool inputLocked = false;
    QString lastText;
    double step = 0.1;
    bool allowZero = true;
    bool hasMinimum = false;
    double minimum = 0;
    int cursorPosition = 0; ///< follows the editor's, but not before an edit is over
    QWidget* row;
    QLabel* caption;
    LineEdit* editor;
    QPushButton* clear;
    QFrame* underline;
    QLabel* unit;
    QUndoStack* undoStack;
    QString shown;     ///< what the editor shows, but for an edit that is not judged yet
    QString announced; ///< by `textChanged`
    QValidator* validator;
    bool typed = false; ///< the text is as it was typed
    bool restoring = false;
    WheelNotches wheel;
};

VLineEdit::Impl::Impl(VLineEdit* control)
    : row(new QWidget(control))
    , caption(label("VPropertyLabel", row))
    , editor(new LineEdit(row))
    , clear(clearButton(row))
    , underline(underLine(control))
    , unit(label("VUnitLabel", row))
    , undoStack(new QUndoStack(control))
    , validator(new ExpressionValidator(shown, editor))
{
}

bool VLineEdit::Impl::isValid(double candidate) const
{
    return std::isfinite(candidate) && (allowZero || std::abs(candidate) > zeroRange) &&
           (!hasMinimum || candidate > minimum);
}

/// The value of a text that is an expression from end to end and valid here.
std::optional<double> VLineEdit::Impl::accepted(const QString& text) const
{
    if (expressionCharacters(text) != text)
        return std::nullopt;
    const auto result = calculated(text);
    return result && isValid(*result) ? result : std::nullopt;
}

/// What the control goes over to when an edit ends.
VLineEdit::Entry VLineEdit::Impl::settled() const
{
    Entry after = entry();
    const bool open = shown != lastText;
    const auto late = open && numberMode ? accepted(shown) : std::nullopt;
    after.value = late.value_or(value);
    if (open && !late)
        after.text = lastText;
    else if (numberMode && (late || typed))
        after.text = textAfterTyping(shown, after.value);
    after.lastText = after.text;
    return after;
}

bool VLineEdit::Impl::refuses(const QString& text) const
{
    return isEvaluating() && !editFits(shown, text, editor->cursorPosition());
}

/// Later, if the history is just being walked through.
void VLineEdit::Impl::forgetHistory()
{
    QMetaObject::invokeMethod(undoStack, &QUndoStack::clear,
                              restoring ? Qt::QueuedConnection : Qt::DirectConnection);
}

VLineEdit::VLineEdit(QWidget* parent)
    : QWidget(parent)
    , d(std::make_unique<Impl>(this))
{
    setObjectName(QStringLiteral("VLineEditWidget"));
    setAttribute(Qt::WA_StyledBackground);
    setFixedHeight(20);
    setFocusProxy(d->editor);
    d->row->setObjectName(QStringLiteral("VEditWidget"));
    d->caption->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    d->caption->setMinimumSize(16, 16);
    d->caption->setContentsMargins(3, 0, 0, 0); // off the edge of the entry
    d->caption->hide();
    d->editor->setObjectName(QStringLiteral("VLineEdit"));
    d->editor->setAlignment(Qt::AlignLeft);
    d->editor->setFixedHeight(19);
    d->editor->setTextMargins(0, 0, 0, 0);
    d->editor->setFrame(false);
    d->editor->setValidator(d->validator);
    d->unit->setFixedSize(24, 16);
    arrange();
    connectEditor();
}

/// The editor is deleted later, and loses the focus before.
VLineEdit::~VLineEdit()
{
    d->editor->setValidator(nullptr);
    disconnect(d->editor, nullptr, this, nullptr);
    disconnect(d->undoStack, nullptr, this, nullptr);
}

void VLineEdit::arrange()
{
    auto* row = new QHBoxLayout(d->row);
    row->setSpacing(0);
    row->setContentsMargins(0, 0, 5, 0);
    row->addWidget(d->caption);
    row->addWidget(d->editor);
    row->addWidget(d->clear);
    row->addWidget(d->unit);
    auto* column = new QVBoxLayout(this);
    column->setSpacing(0);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(d->row);
    column->addWidget(d->underline);
}

void VLineEdit::connectEditor()
{
    connect(d->editor, &QLineEdit::textChanged, this, &VLineEdit::slotTextChanged);
    connect(d->editor, &QLineEdit::textEdited, this, &VLineEdit::onTextEdited);
    connect(d->editor, &QLineEdit::editingFinished, this, &VLineEdit::onEditingFinished);
    connect(d->editor, &QLineEdit::cursorPositionChanged, this,
            [this](int, int position) { d->cursorPosition = position; });
    connect(d->editor, &LineEdit::undoRequested, d->undoStack, &QUndoStack::undo);
    connect(d->editor, &LineEdit::redoRequested, d->undoStack, &QUndoStack::redo);
    connect(d->clear, &QPushButton::clicked, this, &VLineEdit::clearText);
    d->editor->installEventFilter(this);
}

double VLineEdit::value() const
{
    return d->value;
}

QString VLineEdit::text() const
{
    return d->editor->text();
}

void VLineEdit::setText(const QString& text)
{
    if (text.trimmed().isEmpty())
        return;
    const QString shown = d->numberMode ? expressionCharacters(text) : text;
    if (d->numberMode) {
        const auto value = d->accepted(shown);
        if (!value)
            return;
        d->value = *value;
    }
    d->lastText = shown;
    d->typed = false;
    if (shown == d->editor->text())
        return;
    d->forgetHistory();
    d->shown = shown;
    d->editor->setText(shown);
}

void VLineEdit::setNumberMode(bool on)
{
    if (d->numberMode == on)
        return;
    d->numberMode = on;
    d->editor->setValidator(on ? d->validator : nullptr);
    d->forgetHistory();
    if (text().isEmpty())
        return;
    const auto value = on ? d->accepted(text()) : d->value;
    const QString shown = value ? text() : shownNumber(d->value);
    d->value = value.value_or(d->value);
    restore({shown, shown, d->value, d->cursorPosition});
}

bool VLineEdit::numberMode() const
{
    return d->numberMode;
}

void VLineEdit::setReadOnly(bool on)
{
    d->readOnly = on;
    d->editor->setReadOnly(on);
    d->clear->setDisabled(on);
}

bool VLineEdit::isReadOnly() const
{
    return d->readOnly;
}

void VLineEdit::setInputLocked(bool on)
{
    d->inputLocked = on;
}

bool VLineEdit::isInputLocked() const
{
    return d->inputLocked;
}

void VLineEdit::setStep(double step)
{
    d->step = step;
}

double VLineEdit::step() const
{
    return d->step;
}

void VLineEdit::setAllowZero(bool on)
{
    d->allowZero = on;
}

bool VLineEdit::allowZero() const
{
    return d->allowZero;
}

void VLineEdit::setMinimum(double minimum)
{
    d->hasMinimum = true;
    d->minimum = minimum;
}

void VLineEdit::clearMinimum()
{
    d->hasMinimum = false;
    d->minimum = 0;
}

bool VLineEdit::hasMinimum() const
{
    return d->hasMinimum;
}

double VLineEdit::minimum() const
{
    return d->minimum;
}

void VLineEdit::setCaption(const QString& caption)
{
    d->caption->setText(caption);
    d->caption->setHidden(caption.isEmpty());
    d->editor->setAccessibleName(caption);
}

QString VLineEdit::caption() const
{
    return d->caption->text();
}

void VLineEdit::setUnit(const QString& unit)
{
    d->unit->setText(unit);
}

QString VLineEdit::unit() const
{
    return d->unit->text();
}

QUndoStack* VLineEdit::undoStack() const
{
    return d->undoStack;
}

/// Announces a text once. The editor tells of an edit after `onTextEdited` has judged it, also when another
/// text stands by then.
void VLineEdit::slotTextChanged(const QString& text)
{
    if (text != d->editor->text())
        return;
    d->shown = text;
    if (std::exchange(d->announced, text) != text)
        Q_EMIT textChanged(text);
}

void VLineEdit::onTextEdited(const QString& text)
{
    const Entry before = d->entry();
    if (d->refuses(text)) {
        restore(before);
        return;
    }
    d->typed = true;
    Entry after{text, d->lastText, d->value, d->editor->cursorPosition()};
    if (!d->numberMode && !text.isEmpty())
        after.lastText = text;
    const auto value = d->isEvaluating() ? d->accepted(text) : std::nullopt;
    if (!value) {
        change(before, after);
        return;
    }
    after.value = *value;
    after.text = after.lastText = textWhileTyping(text, *value);
    if (after.text != text)
        after.cursor = after.text.size();
    accept(before, after);
}

void VLineEdit::onEditingFinished()
{
    Q_EMIT editingFinished();
}

/// Undo and redo lead here, and so does every change when its command is pushed.
void VLineEdit::restore(const Entry& entry)
{
    const QScopedValueRollback<bool> guard(d->restoring, true);
    const bool otherValue = d->value != entry.value;
    d->value = entry.value;
    d->lastText = entry.lastText;
    d->shown = entry.text;
    if (d->editor->text() != entry.text)
        d->editor->setText(entry.text);
    d->editor->setCursorPosition(entry.cursor);
    slotTextChanged(entry.text);
    if (otherValue)
        Q_EMIT valueChange(d->value);
}

void VLineEdit::change(const Entry& before, const Entry& after)
{
    auto* command = new VUndoCommand(std::bind(&VLineEdit::restore, this, after),
                                     std::bind(&VLineEdit::restore, this, before));
    command->setObsolete(before.text == after.text);
    if (command->isObsolete())
        restore(after); // the stack does not run it
    d->undoStack->push(command);
}

/// A change that is a value, which is announced even if it was the value before.
void VLineEdit::accept(const Entry& before, const Entry& after)
{
    d->value = after.value;
    change(before, after);
    Q_EMIT valueChange(d->value);
}

void VLineEdit::clearText()
{
    d->editor->setFocus();
    if (!d->shown.isEmpty())
        change(d->entry(), {QString(), d->lastText, d->value, 0});
}

void VLineEdit::stepBy(int notches, Qt::KeyboardModifiers modifiers)
{
    const double sum = d->value + notches * d->step * wheelFactor(modifiers);
    const double value = std::abs(sum) <= zeroRange ? 0 : sum;
    if (notches == 0 || !d->isValid(value))
        return;
    const QString text = shownNumber(value);
    d->typed = false;
    accept(d->entry(), {text, text, value, d->cursorPosition});
}

/// An edit goes on after a look at another window, and after a lock.
void VLineEdit::leave(Qt::FocusReason reason)
{
    if (d->editor->isEnabled() && reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
        settle();
    Q_EMIT sigEditFinished(d->lastText);
}

/// Ends an edit: what has no value goes back to what had one.
void VLineEdit::settle()
{
    if (d->numberMode && d->inputLocked)
        return;
    const Entry before = d->entry();
    const Entry after = d->settled();
    d->typed = false;
    d->lastText = after.lastText;
    if (after.value != before.value)
        accept(before, after);
    else if (after.text != before.text)
        change(before, after);
}

bool VLineEdit::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != d->editor)
        return QWidget::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::Wheel: {
        if (!d->numberMode || d->readOnly || !d->editor->isEnabled())
            break;
        const auto* wheel = static_cast<QWheelEvent*>(event);
        stepBy(d->wheel.turn(wheel->angleDelta(), wheel->modifiers()), wheel->modifiers());
        event->accept();
        return true;
    }
    case QEvent::KeyPress:
        if (!isEnter(static_cast<QKeyEvent*>(event)->key()))
            break;
        d->editor->clearFocus();
        return true;
    case QEvent::FocusOut:
        leave(static_cast<QFocusEvent*>(event)->reason());
        break;
    case QEvent::FocusIn:
        style()->unpolish(this);
        style()->polish(this);
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace vardeno::testcharttools
