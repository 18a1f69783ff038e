// SPDX-License-Identifier: MIT

#include "recordingpage.h"

#include "ryabstatcmanager.h"

#include <QTabWidget>

namespace {

QStringList events;
QString awaited;
std::function<void()> awaiting;

} // namespace

QStringList RecordingPage::takeLog()
{
    const QStringList taken = events;
    events.clear();
    return taken;
}

void RecordingPage::callAt(const QString &event, const std::function<void()> &call)
{
    awaited = event;
    awaiting = call;
}

RecordingPage::RecordingPage(const QString &title, RyAbstatcManager *manager)
    : m_title(title)
{
    record("made for " + (manager ? manager->objectName() : "null"));
}

RecordingPage::~RecordingPage()
{
    record(m_widget ? "deleted before its widget" : "deleted");
}

QString RecordingPage::name() const
{
    record("name");
    return m_title;
}

QWidget *RecordingPage::createPage(QWidget *parent)
{
    const int tabs = parent->findChild<QTabWidget *>()->count();
    record(QString("createPage in %1 with %2 tabs").arg(parent->objectName()).arg(tabs));
    m_widget = new QWidget(parent);
    m_widget->setObjectName(m_title);
    const QString title = m_title;
    QObject::connect(m_widget, &QObject::destroyed, [title] { events << title + " widget gone"; });
    return m_widget;
}

void RecordingPage::apply()
{
    record("apply");
}

// The dialog is to close only after this.
void RecordingPage::finish()
{
    const bool open = m_widget && m_widget->window()->isVisible();
    record(open ? "finish while open" : "finish");
}

void RecordingPage::RestorDefaults()
{
    record("RestorDefaults");
}

void RecordingPage::record(const QString &event) const
{
    events << m_title + " " + event;
    if (awaiting && events.constLast() == awaited) {
        // The call may delete this page.
        const auto call = awaiting;
        awaiting = nullptr;
        call();
    }
}
