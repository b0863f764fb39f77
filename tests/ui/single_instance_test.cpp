// The one-instance rule with files: a second start hands the files it was
// given to the first, which opens them in order and comes forward.

#include "platform/single_instance.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QUuid>
#include <QtTest>

using kestrova::SingleInstance;

class SingleInstanceTest : public QObject {
    Q_OBJECT

private slots:
    void aSecondStartHandsItsFilesToTheFirst()
    {
        const QString name = "kestrova-test-" + QUuid::createUuid().toString(QUuid::Id128);
        SingleInstance first(name);
        QVERIFY(!first.anotherIsRunning());
        QSignalSpy raised(&first, &SingleInstance::raiseRequested);
        QSignalSpy files(&first, &SingleInstance::filesRequested);

        QTemporaryDir dir;
        const QString relative = "cases/pump room.ksv"; // taken from the second start's folder
        const QString absolute = dir.filePath("b.ksv");
        SingleInstance second(name, {relative, absolute});
        QVERIFY(second.anotherIsRunning());
        QTRY_COMPARE(files.count(), 1);
        QCOMPARE(raised.count(), 1);
        QCOMPARE(files.front().front().toStringList(),
                 (QStringList{QDir::current().absoluteFilePath(relative), absolute}));

        // Without files the second start only brings the first forward.
        SingleInstance third(name);
        QVERIFY(third.anotherIsRunning());
        QTRY_COMPARE(raised.count(), 2);
        QCOMPARE(files.count(), 1);
    }
};

int runSingleInstanceTests(int argc, char** argv)
{
    SingleInstanceTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "single_instance_test.moc"
