// The help as a user meets it: the Help menu opens the viewer at the contents
// or at an empty index key; F1 in a tool and its "Help with Equations" button
// open that tool's topic; every context number a form names has its page in
// the help file built beside the program; without the help file the
// program's message stands.

#include "widget_test_support.h"

#include "forms/model/help_contexts.h"
#include "forms/model/scripted_user_interface.h"
#include "forms/ui/form_view.h"
#include "frame/ui/help_system.h"
#include "frame/ui/help_viewer.h"

#include <QHelpEngineCore>
#include <QLineEdit>
#include <QTabWidget>
#include <QtTest>

using namespace kestrova;

namespace {

QString helpFileBesideTheProgram() { return HelpSystem::defaultHelpFile(); }

// The page of a context number, read from the help file as the viewer reads it.
QString pageText(QHelpEngineCore& engine, int context)
{
    QUrl url = HelpSystem::topicUrl(context);
    url.setFragment({});
    return QString::fromUtf8(engine.fileData(url));
}

} // namespace

class HelpWidgetsTest : public QObject {
    Q_OBJECT

private slots:
    void everyContextNumberHasItsTopicInTheHelpFile()
    {
        QTemporaryDir dir;
        QHelpEngineCore engine(dir.filePath("check.qhc"));
        engine.setReadOnly(false);
        QVERIFY(engine.setupData());
        QVERIFY2(engine.registerDocumentation(helpFileBesideTheProgram()), qPrintable(engine.error()));
        for (const help::Topic& topic : help::topics()) {
            const QString text = pageText(engine, topic.context);
            QVERIFY2(text.contains("<title>"), topic.page);
            const QString anchor = HelpSystem::topicUrl(topic.context).fragment();
            if (!anchor.isEmpty())
                QVERIFY2(text.contains(QString("id=\"%1\"").arg(anchor)), topic.page);
        }
        // A number without a topic falls back on the contents.
        QCOMPARE(HelpSystem::topicUrl(4711), HelpSystem::topicUrl(help::Contents));
    }

    void helpMenuOpensTheContentsAndTheIndex()
    {
        FrameUnderTest under;
        QVERIFY(shownAndActive(under.frame));
        under.frame.action("mnuHelpContents")->trigger();
        HelpViewer* viewer = under.frame.help().viewer();
        QVERIFY(viewer);
        QVERIFY(QTest::qWaitForWindowExposed(viewer));
        QCOMPARE(viewer->browser()->source(), HelpSystem::topicUrl(help::Contents));
        QCOMPARE(viewer->browser()->documentTitle(), QString("Kestrova Help"));
        under.frame.action("mnuHelpSearchForHelpOn")->trigger();
        auto* key = viewer->findChild<QLineEdit*>("helpIndexKey");
        QVERIFY(key);
        QVERIFY(key->text().isEmpty());
        QCOMPARE(viewer->navigation()->currentWidget()->isAncestorOf(key), true);
        QVERIFY(under.frame.close());
        QVERIFY(!viewer->isVisible()); // the viewer goes with the frame
    }

    void f1AndTheEquationButtonsOpenTheToolsTopic()
    {
        FrameUnderTest under;
        QVERIFY(shownAndActive(under.frame));
        frmMain& frame = under.frame;
        QVERIFY(frame.openDocumentTool(1)); // orifice plates, liquid tab in front
        QWidget* form = frontForm(frame);
        auto* field = control<QLineEdit>(form, "txtData(1)");
        field->setFocus();
        QTest::keyClick(field, Qt::Key_F1);
        HelpViewer* viewer = frame.help().viewer();
        QVERIFY(viewer);
        QCOMPARE(viewer->browser()->source(), HelpSystem::topicUrl(help::OrificeLiquid));
        QCOMPARE(viewer->browser()->documentTitle(), QString("Orifice Plates"));
        control<QTabWidget>(form, "SSTab1")->setCurrentIndex(1);
        control<QPushButton>(form, "cmdHelp(1)")->click();
        QCOMPARE(viewer->browser()->source(), HelpSystem::topicUrl(help::OrificeGas));

        QVERIFY(frame.openDocumentTool(2)); // pressure drop: each tab's button opens its own topic
        form = frontForm(frame);
        control<QPushButton>(form, "cmdHelp(0)")->click();
        QCOMPARE(viewer->browser()->source(), HelpSystem::topicUrl(help::PressureDropLiquid));
        control<QTabWidget>(form, "SSTab1")->setCurrentIndex(2);
        control<QPushButton>(form, "cmdHelp(2)")->click();
        QCOMPARE(viewer->browser()->source(), HelpSystem::topicUrl(help::PressureDropTwoPhase));
        QCOMPARE(viewer->browser()->documentTitle(), QString("Pressure Drop: Two-Phase Lines"));
        QVERIFY(frame.close());
    }

    void withoutTheHelpFileTheProgramsMessageStands()
    {
        QTemporaryDir dir;
        ScriptedUserInterface ui;
        HelpSystem help(ui, dir.filePath("missing.qch"), dir.filePath("help/kestrova.qhc"));
        help.showContents();
        help.showTopic(help::OrificeGas);
        QCOMPARE(ui.messages.size(), size_t(2));
        QCOMPARE(QString::fromStdString(ui.messages.front().text),
                 QString("Unable to display Help Contents. There is no Help associated with this project."));
        QVERIFY(!help.viewer());
    }
};

int runHelpWidgetTests(int argc, char** argv)
{
    HelpWidgetsTest help;
    return QTest::qExec(&help, argc, argv);
}

#include "help_widgets_test.moc"
