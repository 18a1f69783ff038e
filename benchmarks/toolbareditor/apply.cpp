// SPDX-License-Identifier: MIT

#include "apply.h"

#include "baretoolbars.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QPushButton>

namespace {

class EventCounter : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *) override
    {
        ++events;
        return false;
    }

    int events = 0;
};

} // namespace

ApplySameOurs::ApplySameOurs(const Size &size)
    : SceneSide(size)
{
    m_scene.show();
    m_dialog = m_scene.createOurs();
    m_dialog->show();
    m_button = m_dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Apply);
    settle();
}

void ApplySameOurs::run()
{
    m_button->click();
}

QStringList ApplySameOurs::result()
{
    settle();
    EventCounter counter;
    m_scene.window()->installEventFilter(&counter);
    for (QToolBar *toolBar : m_scene.toolBars())
        toolBar->installEventFilter(&counter);
    m_button->click();
    return SceneSide::result() << QStringLiteral("%1 events").arg(counter.events);
}

ApplySameBare::ApplySameBare(const Size &size)
    : SceneSide(size)
    , m_contents(contents(0))
    , m_wanted(contents(0))
{
    m_scene.fillToolBars();
    m_scene.show();
}

void ApplySameBare::run()
{
    for (int i = 0; i < m_contents.size(); ++i) {
        if (m_contents.at(i) != m_wanted.at(i))
            bare::setContent(m_scene.toolBars().at(i), m_wanted.at(i));
    }
}

QStringList ApplySameBare::result()
{
    return SceneSide::result() << QStringLiteral("0 events");
}

ApplyOtherOurs::ApplyOtherOurs(const Size &size)
    : ApplySameOurs(size)
{
}

void ApplyOtherOurs::prepare()
{
    for (int i = 0; i < m_scene.toolBars().size(); ++i)
        m_scene.manager()->setToolBar(m_scene.toolBars().at(i), m_scene.content(i, 1));
    settle();
}

QStringList ApplyOtherOurs::result()
{
    return SceneSide::result();
}

ApplyOtherBare::ApplyOtherBare(const Size &size)
    : SceneSide(size)
    , m_contents{contents(0), contents(1)}
{
    m_scene.fillToolBars();
    m_scene.show();
}

void ApplyOtherBare::prepare()
{
    for (int i = 0; i < m_scene.toolBars().size(); ++i)
        bare::setContent(m_scene.toolBars().at(i), m_contents[1].at(i));
    settle();
}

void ApplyOtherBare::run()
{
    for (int i = 0; i < m_scene.toolBars().size(); ++i)
        bare::setContent(m_scene.toolBars().at(i), m_contents[0].at(i));
}
