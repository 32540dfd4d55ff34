#include "thememenu.h"

#include "desktheme.h"
#include "hosttext.h"

#include <QActionGroup>

ThemeMenu::ThemeMenu(QWidget* parent)
    : QMenu(parent)
    , m_choices(new QActionGroup(this))
{
    for (const char* name : {"dark", "light"}) {
        QAction* choice = m_choices->addAction(QString());
        choice->setCheckable(true);
        choice->setData(QString::fromLatin1(name));
        choice->setChecked(DeskTheme::chosen() == choice->data().toString());
        addAction(choice);
    }
    connect(m_choices, &QActionGroup::triggered, this, [this](const QAction* choice) {
        DeskTheme::choose(choice->data().toString());
        Q_EMIT chosen();
    });
}

void ThemeMenu::retranslate()
{
    setTitle(hostText(QStringLiteral("Theme")));
    m_choices->actions().at(0)->setText(hostText(QStringLiteral("Dark")));
    m_choices->actions().at(1)->setText(hostText(QStringLiteral("Light")));
}
