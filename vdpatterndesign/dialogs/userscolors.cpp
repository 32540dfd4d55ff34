#include "dialogs/userscolors.h"

#include <QColorDialog>
#include <QCoreApplication>

#include <vector>

namespace vardeno::testcharttools {

namespace {

struct Slot
{
    QColor users; ///< invalid before the first time
    QColor filler;
};

std::vector<Slot>& kept()
{
    static std::vector<Slot> colors(static_cast<std::size_t>(QColorDialog::customCount()));
    return colors;
}

bool isFilled(int i)
{
    const Slot& slot = kept()[std::size_t(i)];
    return slot.filler.isValid() && QColorDialog::customColor(i).rgba() == slot.filler.rgba();
}

} // namespace

void UsersColors::replaceBy(const QColor& filler)
{
    static const bool givenBackAtTheEnd = (qAddPostRoutine(giveBack), true);
    Q_UNUSED(givenBackAtTheEnd)
    for (int i = 0; i < QColorDialog::customCount(); ++i) {
        if (!isFilled(i))
            kept()[std::size_t(i)].users = QColorDialog::customColor(i);
        kept()[std::size_t(i)].filler = filler;
        QColorDialog::setCustomColor(i, filler);
    }
}

void UsersColors::giveBack()
{
    for (int i = 0; i < QColorDialog::customCount(); ++i) {
        if (isFilled(i))
            QColorDialog::setCustomColor(i, kept()[std::size_t(i)].users);
        kept()[std::size_t(i)] = {};
    }
}

} // namespace vardeno::testcharttools
