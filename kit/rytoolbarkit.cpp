// SPDX-License-Identifier: MIT

#include "rytoolbarkit.h"

#include "rytoolbarkitprivate.h"

#include <QAction>
#include <QMainWindow>

RyToolBarKit::RyToolBarKit(QMainWindow *window, bool printProblems)
    : QObject(window)
    , d(nullptr)
{
    QMainWindow *attached = window;
    if (!window) {
        qWarning("RyToolBarKit: there is no window");
    } else if (window->findChildren<RyToolBarKit *>(QString(), Qt::FindDirectChildrenOnly).size()
               > 1) {
        qWarning("RyToolBarKit: the window has a kit already");
        attached = nullptr;
    }
    d = new RyToolBarKitPrivate(this, attached, printProblems);
}

RyToolBarKit::~RyToolBarKit()
{
    delete d;
}

void RyToolBarKit::setFeatures(Features features)
{
    d->features = features;
}

RyToolBarKit::Features RyToolBarKit::features() const
{
    return d->features;
}

QAction *RyToolBarKit::customizeAction()
{
    return d->customizeAction;
}

QAction *RyToolBarKit::undoAction()
{
    return d->undoAction;
}

QAction *RyToolBarKit::redoAction()
{
    return d->redoAction;
}

RyToolBarManager *RyToolBarKit::manager()
{
    return d->manager;
}

void RyToolBarKit::setSettings(QSettings *settings, const QString &key)
{
    d->store.set(settings, key);
}

bool RyToolBarKit::restoreNow()
{
    return d->restoreNow();
}

QByteArray RyToolBarKit::saveLayout()
{
    return d->saveLayout();
}

bool RyToolBarKit::restoreLayout(const QByteArray &layout)
{
    return d->restoreLayout(layout);
}

void RyToolBarKit::setProfilesShown(bool shown)
{
    d->areProfilesShown = shown;
}

QStringList RyToolBarKit::profiles()
{
    return d->profiles().names();
}

bool RyToolBarKit::saveProfile(const QString &name)
{
    return d->saveProfile(name);
}

bool RyToolBarKit::switchToProfile(const QString &name)
{
    return d->switchToProfile(name);
}

bool RyToolBarKit::removeProfile(const QString &name)
{
    return d->removeProfile(name);
}

bool RyToolBarKit::exportLayout(const QString &file)
{
    return d->exportLayout(file);
}

bool RyToolBarKit::importLayout(const QString &file)
{
    return d->importLayout(file);
}

QStringList RyToolBarKit::unknownNames(const QString &file)
{
    return d->unknownNames(file);
}

void RyToolBarKit::addActions(const QList<QAction *> &actions, const QString &category)
{
    d->addActions(actions, category);
}

void RyToolBarKit::setFormerNames(QObject *object, const QStringList &names)
{
    d->setFormerNames(object, names);
}

void RyToolBarKit::setExcluded(QObject *object)
{
    d->setExcluded(object);
}

void RyToolBarKit::setRequired(QAction *action)
{
    d->setRequired(action);
}

QStringList RyToolBarKit::problems()
{
    return d->problems();
}

bool RyToolBarKit::isDefault()
{
    return d->isDefault();
}
