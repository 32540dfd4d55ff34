#include "controls/entrystate.h"

#include "controls/expression.h"

#include <cmath>

namespace vardeno::testcharttools {

namespace {

constexpr double zeroRange = 1e-12;

} // namespace

bool isValidValue(const EntryRules& rules, double value)
{
    return std::isfinite(value) && (rules.allowZero || std::abs(value) > zeroRange) &&
           (!rules.minimum || value > *rules.minimum);
}

std::optional<double> acceptedValue(const EntryRules& rules, const QString& text)
{
    if (expressionCharacters(text) != text)
        return std::nullopt;
    const auto result = calculated(text);
    return result && isValidValue(rules, *result) ? result : std::nullopt;
}

std::optional<EntryChange> afterTyping(const EntryRules& rules, const EntryState& before, const QString& text,
                                       int cursor)
{
    if (rules.isEvaluating() && !editFits(before.text, text, cursor))
        return std::nullopt;
    EntryState after{text, before.lastText, before.value, cursor, true};
    if (!rules.numberMode && !text.isEmpty())
        after.lastText = text;
    const auto value = rules.isEvaluating() ? acceptedValue(rules, text) : std::nullopt;
    if (!value)
        return EntryChange{after};
    after.value = *value;
    after.text = after.lastText = textWhileTyping(text, *value);
    if (after.text != text)
        after.cursor = after.text.size();
    return EntryChange{after, true};
}

EntryChange afterEdit(const EntryRules& rules, const EntryState& before)
{
    if (rules.numberMode && rules.inputLocked)
        return {before};
    EntryState after = before;
    const bool open = before.text != before.lastText;
    const auto late = open && rules.numberMode ? acceptedValue(rules, before.text) : std::nullopt;
    after.value = late.value_or(before.value);
    if (open && !late)
        after.text = before.lastText;
    else if (rules.numberMode && (late || before.typed))
        after.text = textAfterTyping(before.text, after.value);
    after.lastText = after.text;
    after.typed = false;
    return {after, after.value != before.value};
}

std::optional<EntryChange> afterStep(const EntryRules& rules, const EntryState& before, double way)
{
    const double sum = before.value + way;
    const double value = std::abs(sum) <= zeroRange ? 0 : sum;
    if (!isValidValue(rules, value))
        return std::nullopt;
    const QString text = shownNumber(value);
    return EntryChange{{text, text, value, before.cursor, false}, true};
}

EntryState afterClearing(const EntryState& before)
{
    return {QString(), before.lastText, before.value, 0, before.typed};
}

std::optional<EntryState> afterSetting(const EntryRules& rules, const EntryState& before, const QString& text)
{
    if (text.trimmed().isEmpty())
        return std::nullopt;
    EntryState after{text, text, before.value, before.cursor, false};
    if (!rules.numberMode)
        return after;
    after.text = after.lastText = expressionCharacters(text);
    const auto value = acceptedValue(rules, after.text);
    if (!value)
        return std::nullopt;
    after.value = *value;
    return after;
}

EntryState afterModeChange(const EntryRules& rules, const EntryState& before)
{
    EntryState after = before;
    const auto value = rules.numberMode ? acceptedValue(rules, before.text) : before.value;
    after.value = value.value_or(before.value);
    after.text = after.lastText = value ? before.text : shownNumber(before.value);
    return after;
}

} // namespace vardeno::testcharttools
