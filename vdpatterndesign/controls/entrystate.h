#pragma once

#include <QString>

#include <optional>

namespace vardeno::testcharttools {

/// Which texts and values a calculating entry takes.
struct EntryRules
{
    bool numberMode = true;   ///< otherwise any text is taken, and the value rests
    bool inputLocked = false; ///< what is typed is not evaluated
    bool allowZero = true;
    std::optional<double> minimum; ///< which no value may have, either

    bool isEvaluating() const { return numberMode && !inputLocked; }
};

/// What a calculating entry holds, and what undo and redo bring back.
struct EntryState
{
    QString text;          ///< what is shown
    QString lastText = {}; ///< the last one that was accepted
    double value = 0;
    int cursor = 0;
    bool typed = false; ///< the text is as it was typed
};

/// What follows a state; `isValue`: with a value that is told of, even if it was the value before.
struct EntryChange
{
    EntryState after;
    bool isValue = false;
};

bool isValidValue(const EntryRules& rules, double value);
/// The value of a text that is an expression from end to end and valid here.
std::optional<double> acceptedValue(const EntryRules& rules, const QString& text);

/// `text` has been typed, with the cursor at `cursor`; nothing for one that can never have a value.
std::optional<EntryChange> afterTyping(const EntryRules& rules, const EntryState& before, const QString& text,
                                       int cursor);
/// The edit has ended: what has no value goes back to what had one.
EntryChange afterEdit(const EntryRules& rules, const EntryState& before);
/// The value has been stepped by `way`; nothing where that leads to no valid value.
std::optional<EntryChange> afterStep(const EntryRules& rules, const EntryState& before, double way);
EntryState afterClearing(const EntryState& before);
/// `text` has been set; nothing for one that is not taken.
std::optional<EntryState> afterSetting(const EntryRules& rules, const EntryState& before,
                                       const QString& text);
/// The rules have another mode now.
EntryState afterModeChange(const EntryRules& rules, const EntryState& before);

} // namespace vardeno::testcharttools
