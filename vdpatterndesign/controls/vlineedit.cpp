#include "vlineedit.h"

#include "controls/entrystate.h"
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

#include <functional>
#include <utility>

namespace vardeno::testcharttools {

namespace {

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

class VLineEdit::Impl
{
public:
    explicit Impl(VLineEdit* control);
    void forgetHistory();

    EntryRules rules;
    EntryState state; ///< its text is what the editor shows, but for an edit that is not judged yet
    bool readOnly = false;
    double step = 0.1;
    QWidget* row;
    QLabel* caption;
    LineEdit* editor;
    QPushButton* clear;
    QFrame* underline;
    QLabel* unit;
    QUndoStack* undoStack;
    QString announced; ///< by `textChanged`
    QValidator* validator;
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
    , validator(new ExpressionValidator(state.text, editor))
{
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
            [this](int, int position) { d->state.cursor = position; });
    connect(d->editor, &LineEdit::undoRequested, d->undoStack, &QUndoStack::undo);
    connect(d->editor, &LineEdit::redoRequested, d->undoStack, &QUndoStack::redo);
    connect(d->clear, &QPushButton::clicked, this, &VLineEdit::clearText);
    d->editor->installEventFilter(this);
}

double VLineEdit::value() const
{
    return d->state.value;
}

QString VLineEdit::text() const
{
    return d->editor->text();
}

void VLineEdit::setText(const QString& text)
{
    const auto after = afterSetting(d->rules, d->state, text);
    if (!after)
        return;
    d->state = *after;
    if (after->text == d->editor->text())
        return;
    d->forgetHistory();
    d->editor->setText(after->text);
}

void VLineEdit::setNumberMode(bool on)
{
    if (d->rules.numberMode == on)
        return;
    d->rules.numberMode = on;
    d->editor->setValidator(on ? d->validator : nullptr);
    d->forgetHistory();
    if (text().isEmpty())
        return;
    const EntryState after = afterModeChange(d->rules, d->state);
    d->state.value = after.value; // not the user's doing: not told of
    restore(after);
}

bool VLineEdit::numberMode() const
{
    return d->rules.numberMode;
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
    d->rules.inputLocked = on;
}

bool VLineEdit::isInputLocked() const
{
    return d->rules.inputLocked;
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
    d->rules.allowZero = on;
}

bool VLineEdit::allowZero() const
{
    return d->rules.allowZero;
}

void VLineEdit::setMinimum(double minimum)
{
    d->rules.minimum = minimum;
}

void VLineEdit::clearMinimum()
{
    d->rules.minimum.reset();
}

bool VLineEdit::hasMinimum() const
{
    return d->rules.minimum.has_value();
}

double VLineEdit::minimum() const
{
    return d->rules.minimum.value_or(0);
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
    d->state.text = text;
    if (std::exchange(d->announced, text) != text)
        Q_EMIT textChanged(text);
}

void VLineEdit::onTextEdited(const QString& text)
{
    const EntryState before = d->state;
    const auto typed = afterTyping(d->rules, before, text, d->editor->cursorPosition());
    if (!typed) {
        restore(before);
        return;
    }
    d->state.typed = true;
    apply(before, *typed);
}

void VLineEdit::onEditingFinished()
{
    Q_EMIT editingFinished();
}

/// Undo and redo lead here, and so does every change when its command is pushed. Whether a text is as it was
/// typed is no matter of the history.
void VLineEdit::restore(const EntryState& state)
{
    const QScopedValueRollback<bool> guard(d->restoring, true);
    const bool otherValue = d->state.value != state.value;
    const bool typed = d->state.typed;
    d->state = state;
    d->state.typed = typed;
    if (d->editor->text() != state.text)
        d->editor->setText(state.text);
    d->editor->setCursorPosition(state.cursor);
    slotTextChanged(state.text);
    if (otherValue)
        Q_EMIT valueChange(d->state.value);
}

void VLineEdit::change(const EntryState& before, const EntryState& after)
{
    auto* command = new VUndoCommand(std::bind(&VLineEdit::restore, this, after),
                                     std::bind(&VLineEdit::restore, this, before));
    command->setObsolete(before.text == after.text);
    if (command->isObsolete())
        restore(after); // the stack does not run it
    d->undoStack->push(command);
}

/// A change that is a value is announced even if it was the value before, and once.
void VLineEdit::apply(const EntryState& before, const EntryChange& made)
{
    if (made.isValue)
        d->state.value = made.after.value;
    change(before, made.after);
    if (made.isValue)
        Q_EMIT valueChange(d->state.value);
}

void VLineEdit::clearText()
{
    d->editor->setFocus();
    if (!d->state.text.isEmpty())
        change(EntryState(d->state), afterClearing(d->state));
}

void VLineEdit::stepBy(int notches, Qt::KeyboardModifiers modifiers)
{
    const auto stepped = afterStep(d->rules, d->state, notches * d->step * wheelFactor(modifiers));
    if (notches == 0 || !stepped)
        return;
    d->state.typed = false;
    apply(EntryState(d->state), *stepped); // the state changes meanwhile
}

/// An edit goes on after a look at another window, and after a lock.
void VLineEdit::leave(Qt::FocusReason reason)
{
    if (d->editor->isEnabled() && reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
        settle();
    Q_EMIT sigEditFinished(d->state.lastText);
}

/// Ends an edit: what has no value goes back to what had one.
void VLineEdit::settle()
{
    const EntryState before = d->state;
    const EntryChange ended = afterEdit(d->rules, before);
    d->state.typed = ended.after.typed;
    d->state.lastText = ended.after.lastText;
    if (ended.isValue || ended.after.text != before.text)
        apply(before, ended);
}

bool VLineEdit::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != d->editor)
        return QWidget::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::Wheel: {
        if (!d->rules.numberMode || d->readOnly || !d->editor->isEnabled())
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
