// SPDX-License-Identifier: MIT

#include "ryabstatcmanager.h"
#include "rytoolbarmanager.h"
#include "testcase.h"
#include "virtualslots.h"

#include <QtTest>

class SignallingManager : public RyAbstatcManager
{
    Q_OBJECT

Q_SIGNALS:
    void changed();
};

class tst_RyAbstatcManager : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isPubliclyConstructedWithoutArguments();
    void belongsToNoParent();
    void hasNoMetaObjectOfItsOwn();
    void cannotBeCastToByName();
    void aSubclassMayHaveAMetaObject();
    void theToolBarManagerHasAMetaObject();
    void hasNoFields();
    void addsNoVirtualFunction();
    void isDeletedThroughItsBase();
};

void tst_RyAbstatcManager::isPubliclyConstructedWithoutArguments()
{
    QVERIFY(std::is_default_constructible_v<RyAbstatcManager>);
    QVERIFY(!std::is_abstract_v<RyAbstatcManager>);
    QVERIFY((!std::is_constructible_v<RyAbstatcManager, QObject *>));
}

void tst_RyAbstatcManager::belongsToNoParent()
{
    const RyAbstatcManager manager;
    QVERIFY(!manager.parent());
}

void tst_RyAbstatcManager::hasNoMetaObjectOfItsOwn()
{
    const RyAbstatcManager manager;
    QCOMPARE(manager.metaObject(), &QObject::staticMetaObject);
    QCOMPARE(&RyAbstatcManager::staticMetaObject, &QObject::staticMetaObject);
    QCOMPARE(manager.metaObject()->className(), "QObject");
}

void tst_RyAbstatcManager::cannotBeCastToByName()
{
    RyAbstatcManager manager;
    QVERIFY(!manager.inherits("RyAbstatcManager"));
    QVERIFY(!manager.qt_metacast("RyAbstatcManager"));
    // What qobject_cast asks at compile time.
    QVERIFY(!QtPrivate::HasQ_OBJECT_Macro<RyAbstatcManager>::Value);
}

void tst_RyAbstatcManager::aSubclassMayHaveAMetaObject()
{
    SignallingManager manager;
    QSignalSpy spy(&manager, &SignallingManager::changed);
    Q_EMIT manager.changed();
    QCOMPARE(spy.count(), 1);
    QCOMPARE(manager.metaObject()->superClass(), &QObject::staticMetaObject);
}

void tst_RyAbstatcManager::theToolBarManagerHasAMetaObject()
{
    RyToolBarManager manager;
    RyAbstatcManager *const base = &manager;
    QCOMPARE(base->metaObject()->className(), "RyToolBarManager");
    QCOMPARE(base->metaObject()->superClass(), &QObject::staticMetaObject);
    QCOMPARE(qobject_cast<RyToolBarManager *>(base), &manager);
}

void tst_RyAbstatcManager::hasNoFields()
{
    QCOMPARE(sizeof(RyAbstatcManager), sizeof(QObject));
}

void tst_RyAbstatcManager::addsNoVirtualFunction()
{
    QCOMPARE(virtualSlotCount<RyAbstatcManager>(), virtualSlotCount<QObject>());
}

void tst_RyAbstatcManager::isDeletedThroughItsBase()
{
    QObject *const object = new SignallingManager;
    QSignalSpy spy(object, &QObject::destroyed);
    RyAbstatcManager *const manager = static_cast<RyAbstatcManager *>(object);
    QVERIFY(std::has_virtual_destructor_v<RyAbstatcManager>);
    delete manager;
    QCOMPARE(spy.count(), 1);
}

QTEST_MAIN(tst_RyAbstatcManager)

#include "tst_ryabstatcmanager.moc"
