#pragma once

#include <QUndoCommand>

#include <utility>

namespace vardeno::testcharttools {

/// An undo command made of two callables without arguments: one that does the change, one that takes it
/// back. Both must be callable, and must stay so for as long as the stack holds the command. Commands that
/// have it as their parent are done after it and taken back before it. A change that turns out to change
/// nothing is marked with `setObsolete` before it is pushed; the stack then drops the command without running
/// it.
template <typename Redo, typename Undo = Redo>
class VUndoCommand : public QUndoCommand
{
public:
    VUndoCommand(Redo redo, Undo undo, QUndoCommand* parent = nullptr)
        : QUndoCommand(parent)
        , m_redo(std::move(redo))
        , m_undo(std::move(undo))
    {
    }

    /// Runs at once when the command is pushed.
    void redo() override
    {
        m_redo();
        QUndoCommand::redo();
    }

    void undo() override
    {
        QUndoCommand::undo();
        m_undo();
    }

private:
    Redo m_redo;
    Undo m_undo;
};

} // namespace vardeno::testcharttools
