#pragma once

#include "vdpatterndesign_export.h"

#include <QWidget>

#include <memory>

class QUndoStack;

namespace vardeno::testcharttools {

struct EntryChange;
struct EntryState;

/// A compact entry, 20 pixels high: an optional caption, a one-line editor with a clear button, a unit, and a
/// thin line below.
///
/// In number mode, which it starts in, it takes digits, the point and the operators + - * / and keeps what
/// they come to as its value. A character that cannot stand where it is typed is refused. Whenever the text
/// has a value, that becomes the control's value, and an operation is replaced by its result ("2*3" by "6",
/// with at most 6 significant digits); only a single number and an operation that ends in a zero stay as they
/// are typed until the edit ends ("1.50", "10-0"), for they may go on. What has no value yet ("2*", "1.",
/// "-", "5/0"), and a value that is not valid here (at or below the minimum, a zero where none is allowed),
/// stays visible for the same reason, and the control's value stays what it was; if the edit ends like that,
/// the last accepted text comes back. What can never have a value ("1..", "5/0*", a result that is not
/// finite) is refused at once.
///
/// The wheel steps the value also without focus. Return and Enter end the edit.
///
/// Every change by the user, wheel steps and the clear button included, can be undone with Ctrl+Z and redone
/// with Ctrl+Y, value and cursor included.
///
/// For style sheets: the control is "VLineEditWidget", its row "VEditWidget", with the caption
/// "VPropertyLabel", the editor "VLineEdit", the clear button "btnclear" and the unit "VUnitLabel", and the
/// line "VUnderLine". The clear button shows the style's own picture; a sheet replaces it with `icon`.
///
/// GUI thread only.
class VDPATTERNDESIGN_EXPORT VLineEdit : public QWidget
{
    Q_OBJECT

public:
    explicit VLineEdit(QWidget* parent = nullptr);
    ~VLineEdit() override;

    double value() const;
    /// What the editor shows.
    QString text() const;
    /// Shows `text`, takes it as accepted and, in number mode, takes its value; characters that have no place
    /// in an expression are left out then. Ignored when it is blank, and in number mode also when it has no
    /// valid value. Does not emit `valueChange`. A text other than the one shown ends the undo history.
    void setText(const QString& text);

    /// Outside number mode any text is accepted except an empty one, and the value rests. When the mode comes
    /// back, a text without a valid value is replaced by the value. Either way ends the undo history.
    /// Initially on.
    void setNumberMode(bool on);
    bool numberMode() const;
    /// A read-only control can be neither typed into nor cleared, stepped or undone. Initially off.
    void setReadOnly(bool on);
    bool isReadOnly() const;
    /// While input is locked, any sequence of the permitted characters can be typed: it is not evaluated, nor
    /// replaced when the edit ends. The next edit, or end of an edit, without the lock evaluates it. The
    /// wheel is not locked. Initially off.
    void setInputLocked(bool on);
    bool isInputLocked() const;

    /// What one notch of the wheel adds: the step, 10 times as much with Control, 100 times with Shift, 1000
    /// times with both. Initially 0.1.
    void setStep(double step);
    double step() const;

    /// A value is valid when it is not 0 (closer than 1e-12) where zero is not allowed, and greater than the
    /// minimum, if there is one. These rules hold for what is typed, stepped and set from then on; the
    /// present value is left alone. Initially zero is allowed and there is no minimum.
    void setAllowZero(bool on);
    bool allowZero() const;
    void setMinimum(double minimum);
    void clearMinimum();
    bool hasMinimum() const;
    /// 0 if there is none.
    double minimum() const;

    /// The text left of the editor; without one the editor takes its place. Initially empty.
    void setCaption(const QString& caption);
    QString caption() const;
    void setUnit(const QString& unit);
    QString unit() const;

    /// The history of this control, for actions that undo and redo or a view that shows it.
    QUndoStack* undoStack() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void editingFinished();
    /// The editor has lost the focus; `strText` is the last accepted text.
    void sigEditFinished(QString strText);
    /// An edit or a wheel step was accepted, or undo or redo led to another value.
    void valueChange(double dValue);
    /// The text has changed, by whatever means. A refused text is not announced.
    void textChanged(QString);

public Q_SLOTS: // for the editor's signals
    void slotTextChanged(const QString& text);
    void onTextEdited(const QString& text);
    void onEditingFinished();

private:
    class Impl;

    void arrange();
    void connectEditor();
    void restore(const EntryState& state);
    void change(const EntryState& before, const EntryState& after);
    void apply(const EntryState& before, const EntryChange& made);
    void clearText();
    void stepBy(int notches, Qt::KeyboardModifiers modifiers);
    void leave(Qt::FocusReason reason);
    void settle();

    std::unique_ptr<Impl> d;
};

} // namespace vardeno::testcharttools
