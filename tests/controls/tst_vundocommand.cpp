#include "testcase.h"

#include <vundocommand.h>

#include <QUndoStack>

#include <functional>

using namespace vardeno::testcharttools;

namespace {

/// What commands write to.
struct Page
{
    void write(const QString& text) { written.append(text); }

    QStringList written;
};

} // namespace

class TestVUndoCommand : public TestCase
{
    Q_OBJECT

private:
    static QUndoCommand* lineCommand(Page& page, const QString& text, const QString& before)
    {
        return new VUndoCommand(std::bind(&Page::write, &page, text), std::bind(&Page::write, &page, before));
    }

private Q_SLOTS:
    void runsWhenItIsPushed()
    {
        Page page;
        QUndoStack stack;
        stack.push(lineCommand(page, QStringLiteral("new"), QStringLiteral("old")));
        QCOMPARE(page.written, QStringList{"new"});
        QCOMPARE(stack.count(), 1);
    }

    void undoesAndRedoes()
    {
        Page page;
        QUndoStack stack;
        stack.push(lineCommand(page, QStringLiteral("b"), QStringLiteral("a")));
        stack.push(lineCommand(page, QStringLiteral("c"), QStringLiteral("b")));
        page.written.clear();
        stack.undo();
        stack.undo();
        stack.redo();
        stack.redo();
        const QStringList written{"b", "a", "b", "c"};
        QCOMPARE(page.written, written);
    }

    void doesNothingByItself()
    {
        Page page;
        delete lineCommand(page, QStringLiteral("new"), QStringLiteral("old"));
        QCOMPARE(page.written, QStringList());
    }

    void takesTwoKindsOfCallables()
    {
        int done = 0;
        VUndoCommand command([&done] { ++done; }, std::function<void()>([&done] { done -= 10; }));
        command.redo();
        QCOMPARE(done, 1);
        command.undo();
        QCOMPARE(done, -9);
    }

    void takesNamedKinds()
    {
        QStringList calls;
        VUndoCommand<std::function<void()>> command([&calls] { calls.append(QStringLiteral("redo")); },
                                                    [&calls] { calls.append(QStringLiteral("undo")); });
        command.undo();
        command.redo();
        const QStringList expected{"undo", "redo"};
        QCOMPARE(calls, expected);
    }

    void anObsoleteCommandIsDropped()
    {
        Page page;
        QUndoStack stack;
        QUndoCommand* const command = lineCommand(page, QStringLiteral("same"), QStringLiteral("same"));
        command->setObsolete(true);
        stack.push(command);
        QCOMPARE(stack.count(), 0);
        QVERIFY(!stack.canUndo());
        QCOMPARE(page.written, QStringList());
    }

    void childrenFollow()
    {
        QStringList calls;
        const auto call = [&calls](const char* name) {
            return [&calls, name] { calls.append(QLatin1String(name)); };
        };
        VUndoCommand parent(call("redo"), call("undo"));
        new VUndoCommand(call("first"), call("first back"), &parent);
        new VUndoCommand(call("second"), call("second back"), &parent);
        QCOMPARE(parent.childCount(), 2);
        parent.redo();
        parent.undo();
        const QStringList expected{"redo", "first", "second", "second back", "first back", "undo"};
        QCOMPARE(calls, expected);
    }
};

VD_TEST_MAIN(TestVUndoCommand)
#include "tst_vundocommand.moc"
