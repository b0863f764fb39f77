// The main frame, the pressure drop window, the dialog tools and the small
// forms under the offscreen platform:
// controls by their program names, typing into fields, unit lists, options,
// menu enabling and saving through the frame.

#include "tool_windows.h"
#include "widget_test_support.h"

#include "frame/ui/auxiliary_dialogs.h"
#include "frame/ui/basPrint.h"
#include "frame/model/company_info_model.h"
#include "frame/ui/document_tools.h"
#include "frame/ui/frmMain.h"
#include "frame/ui/program_icon.h"
#include "forms/store/project_file.h"
#include "tools/orifice/model/orifice_model.h"
#include "forms/model/scripted_user_interface.h"
#include "tools/flow/ui/flow_dialogs.h"
#include "tools/flow/model/gas_density_model.h"
#include "tools/piping/model/minor_loss_store.h"
#include "tools/piping/ui/piping_dialogs.h"
#include "tools/piping/model/reducer_model.h"
#include "tools/piping/model/roughness_model.h"
#include "forms/store/global_units.h"
#include "tools/properties/ui/property_dialogs.h"
#include "forms/store/settings_store.h"
#include "forms/ui/exception_barrier.h"
#include "tools/pressure_drop/model/pressure_drop_model.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QRadioButton>
#include <QListWidget>
#include <QMessageBox>
#include <QPainter>
#include <QRegularExpression>
#include <QPrinter>
#include <QPushButton>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QStandardPaths>
#include <QtTest>

#include <cmath>

using namespace kestrova;

class FrameWidgetsTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setApplicationName("Kestrova"); }

    void pressureDropToolThroughTheFrame()
    {
        FrameUnderTest under;
        QVERIFY(shownAndActive(under.frame));
        frmMain& frame = under.frame;
        QVERIFY(!frame.action("mnuFileSave")->isEnabled());
        QVERIFY(!frame.toolbarButton("Save")->isEnabled());
        QVERIFY(frame.action("mnuFileOpen")->isEnabled());
        QCOMPARE(frame.toolbarButton("CpCv")->toolTip(), QString("Heat Capcity Ratio"));

        frame.action("mnuToolsPressureDrop")->trigger();
        auto* model = dynamic_cast<PressureDropModel*>(frame.openDocumentTool(2));
        QVERIFY(model);
        QWidget* form = frontForm(frame);
        QCOMPARE(form->objectName(), QString("frmPressureDrop"));
        QVERIFY(frame.toolbarButton("Print")->isEnabled());

        typeAll(form, {{"txtData(0)", "36000"}, {"txtData(1)", "62.4"}, {"txtData(2)", "1"}, {"txtData(5)", "6.065"},
                       {"txtData(6)", "0.00015"}});
        QCOMPARE(model->view().record.LiquidFlow.value(), 36000.0f);
        QCOMPARE(control<QLineEdit>(form, "txtData(0)")->text(), QString("36,000.00"));
        QCOMPARE(control<QLineEdit>(form, "txtData(9)")->text(), QString("0.799"));
        QCOMPARE(control<QLineEdit>(form, "txtDisplay(2)")->text(), QString("Turbulent"));
        QVERIFY(frame.action("mnuFileSave")->isEnabled()); // typing made the tool dirty

        // The key filter lets one point and one minus through, and no letters.
        QLineEdit* length = control<QLineEdit>(form, "txtData(8)");
        length->setFocus();
        length->selectAll();
        QTest::keyClicks(length, "-1.2.3x");
        QCOMPARE(length->text(), QString("-1.23"));
        length->clearFocus();

        // A unit list rewrites its field only.
        QComboBox* flowUnits = control<QComboBox>(form, "cboUnits(0)");
        const QString drop = control<QLineEdit>(form, "txtData(10)")->text();
        flowUnits->setCurrentIndex(2);
        emit flowUnits->activated(2);
        QCOMPARE(control<QLineEdit>(form, "txtData(0)")->text(), QString("10.0000"));
        QCOMPARE(control<QLineEdit>(form, "txtData(10)")->text(), drop);

        // A rectangular section enables the conduit sides and greys the diameter.
        control<QRadioButton>(form, "optCrossSection(1)")->click();
        QVERIFY(control<QLineEdit>(form, "txtData(3)")->isEnabled());
        QVERIFY(!control<QLineEdit>(form, "txtData(5)")->isEnabled());
        control<QRadioButton>(form, "optCrossSection(0)")->click();

        // Save through the frame with a file name already given.
        const QString path = under.dir.filePath("case.ksv");
        model->setStrFileName(path.toStdString());
        frame.action("mnuFileSave")->trigger();
        QVERIFY(QFileInfo::exists(path));
        QVERIFY(!model->view().DirtyFlag);
        QVERIFY(!frame.action("mnuFileSave")->isEnabled());
        QCOMPARE(frame.mdiArea()->activeSubWindow()->windowTitle(), QString("Pressure Drop: case.ksv"));

        // The regime map opens beside the tool.
        frame.action("mnuView2PhaseHorizontal")->trigger();
        QCOMPARE(frame.mdiArea()->subWindowList().size(), 2);
        QVERIFY(frontForm(frame)->findChild<QWidget*>("Image1"));
        QVERIFY(frame.close());
    }

    void orificeToolThroughTheFrame()
    {
        FrameUnderTest under;
        QVERIFY(shownAndActive(under.frame));
        frmMain& frame = under.frame;
        auto* model = dynamic_cast<OrificeModel*>(frame.openDocumentTool(1));
        QVERIFY(model);
        QWidget* form = frontForm(frame);
        QCOMPARE(form->objectName(), QString("frmOrificePlates"));
        QVERIFY(control<QLineEdit>(form, "txtData(0)")->isReadOnly()); // the solved flow
        typeAll(form, {{"txtData(1)", "10"}, {"txtData(3)", "68"}, {"txtData(4)", "62.4"}, {"txtData(5)", "1"},
                       {"txtData(2)", "2.013"}, {"txtData(9)", "4.026"}});
        QCOMPARE(control<QLineEdit>(form, "txtData(0)")->text(), QString("119,542.23"));
        QCOMPARE(control<QLineEdit>(form, "txtDisplay(1)")->text(), QString("0.6050"));
        control<QRadioButton>(form, "optCompute(2)")->click(); // now the bore is solved
        QVERIFY(control<QLineEdit>(form, "txtData(2)")->isReadOnly());
        QVERIFY(!control<QLineEdit>(form, "txtData(0)")->isReadOnly());
        QVERIFY(frame.action("mnuFileSave")->isEnabled());
        // Save goes to the tool in front; with a file name it asks nothing, and the file is of kind 1.
        model->setStrFileName(under.dir.filePath("plate.ksv").toStdString());
        frame.action("mnuFileSave")->trigger();
        QByteArray bytes;
        QVERIFY(readWholeFile(under.dir.filePath("plate.ksv"), bytes));
        QCOMPARE(fileKindOf(bytes), std::int16_t(1));
        QCOMPARE(frame.mdiArea()->activeSubWindow()->windowTitle(), QString("Orifice Plates: plate.ksv"));
        QVERIFY(frame.close()); // nothing changed since the save: no question
    }

    void menuLettersWinOverTheWindowsCaptions()
    {
        FrameUnderTest under;
        QVERIFY(shownAndActive(under.frame));
        frmMain& frame = under.frame;
        QVERIFY(frame.openDocumentTool(1)); // its "&Flow Rate:" has the File menu's letter
        QWidget* form = frontForm(frame);
        auto* temperature = control<QLineEdit>(form, "txtData(3)");
        temperature->setFocus();
        QTRY_VERIFY(temperature->hasFocus());
        QAction* file = frame.menuBar()->actions().front();
        QCOMPARE(file->text(), QString("&File"));
        // Qt hands a key that two shortcuts share to each in turn: every press opens the menu.
        for (int press = 0; press < 3; ++press) {
            QTest::keyClick(temperature, Qt::Key_F, Qt::AltModifier);
            QTRY_COMPARE(frame.menuBar()->activeAction(), file);
            QVERIFY(!control<QLineEdit>(form, "txtData(0)")->hasFocus());
            while (QApplication::activePopupWidget())
                QApplication::activePopupWidget()->close();
            frame.menuBar()->setActiveAction(nullptr);
            temperature->setFocus();
            QTRY_VERIFY(temperature->hasFocus());
        }
    }

    void documentWindowsFitTheScreenAndCutNoNumber()
    {
        FrameUnderTest under;
        frmMain& frame = under.frame;
        frame.resize(800, 600);
        QVERIFY(shownAndActive(frame));
        for (std::int16_t kind : {2, 1, 3}) {
            QVERIFY(frame.openDocumentTool(kind));
            QMdiSubWindow* window = frame.mdiArea()->activeSubWindow();
            QVERIFY(window->width() <= frame.mdiArea()->viewport()->width());
            QVERIFY(window->height() <= frame.mdiArea()->viewport()->height());
            QCOMPARE(window->windowIcon().pixmap(16).toImage(), programPicture(16).toImage()); // not the toolkit's logo
            QWidget* form = frontForm(frame);
            // Wider than the window, the form would scroll; at 800 it fits across.
            QVERIFY(form->minimumSizeHint().width() <= 800);
            QVERIFY(form->minimumSizeHint().height() <= 600);
            expectWholeTexts(*form);
        }
        // A case with long numbers in every tab of the pressure drop window.
        auto* model = dynamic_cast<PressureDropModel*>(frame.openDocumentTool(2));
        QWidget* form = frontForm(frame);
        model->SSTab1_Click(1);
        typeAll(form, {{"txtData(11)", "30000"}, {"txtData(12)", "100"}, {"txtData(14)", "0.018"}, {"txtData(15)", "4.026"},
                       {"txtData(17)", "20000"}, {"txtDisplay(4)", "28.97"}, {"txtDisplay(5)", "1"}, {"txtDisplay(6)", "1.4"}});
        expectWholeTexts(*form);
        // Maximised on a 1024 by 768 screen the window needs no scrolling.
        frame.resize(1024, 768);
        frame.mdiArea()->activeSubWindow()->showMaximized();
        QTest::qWait(50);
        auto* scroller = qobject_cast<QScrollArea*>(frame.mdiArea()->activeSubWindow()->widget());
        QVERIFY(scroller);
        QVERIFY(!scroller->horizontalScrollBar()->isVisible());
        QVERIFY(!scroller->verticalScrollBar()->isVisible());
        answerNextMessage(QMessageBox::No); // "Save data before closing?"
        QVERIFY(frame.close());
    }

    void filesOpenInTheToolOfTheirKind()
    {
        QTemporaryDir dir;
        // A saved orifice case and a saved pressure drop case, written by the tools.
        {
            ScriptedUserInterface ui;
            OrificeModel plate(ui);
            plate.Form_Load();
            plate.commit(orifice::txtData(orifice::LiquidPipeID), "4.026");
            plate.commit(orifice::txtProject(0), "Meter run");
            plate.setStrFileName(dir.filePath("plate.ksv").toStdString());
            QVERIFY(plate.OpenSaveData("Save"));
            PressureDropModel line(ui);
            line.Form_Load();
            line.setStrFileName(dir.filePath("line.ksv").toStdString());
            QVERIFY(line.OpenSaveData("Save"));
        }
        SettingsStore store(dir.filePath("Kestrova.ini"));
        frmMain frame(store);
        QVERIFY(shownAndActive(frame));
        frame.openFile(dir.filePath("plate.ksv"));
        QWidget* front = frontForm(frame);
        QCOMPARE(front->objectName(), QString("frmOrificePlates"));
        QCOMPARE(control<QLineEdit>(front, "txtData(9)")->text(), QString("4.0260"));
        QCOMPARE(control<QLineEdit>(front, "txtProject(0)")->text(), QString("Meter run"));
        frame.openFile(dir.filePath("line.ksv"));
        QCOMPARE(frontForm(frame)->objectName(), QString("frmPressureDrop"));
        QCOMPARE(frame.mdiArea()->subWindowList().size(), 2);
        // Both files stand in the recent list, the last opened first.
        QCOMPARE(frame.action("mnuFileMRU(1)")->text().contains("line.ksv"), true);
        QCOMPARE(frame.action("mnuFileMRU(2)")->text().contains("plate.ksv"), true);
        // Opening the orifice file again brings its window forward; no second one.
        frame.openFile(dir.filePath("plate.ksv"));
        QCOMPARE(frame.mdiArea()->subWindowList().size(), 2);
        QCOMPARE(frontForm(frame)->objectName(), QString("frmOrificePlates"));
        QVERIFY(frame.close());
    }

    void gasResultsFrameTurnsRedWhenChoked()
    {
        FrameUnderTest under;
        QVERIFY(shownAndActive(under.frame));
        frmMain& frame = under.frame;
        auto* model = dynamic_cast<PressureDropModel*>(frame.openDocumentTool(2));
        QWidget* form = frontForm(frame);
        model->SSTab1_Click(1);
        typeAll(form, {{"txtData(11)", "30000"}, {"txtData(12)", "100"}, {"txtData(14)", "0.018"}, {"txtData(15)", "4.026"},
                       {"txtData(17)", "20000"}, {"txtDisplay(4)", "28.97"}, {"txtDisplay(5)", "1"}, {"txtDisplay(6)", "1.4"}});
        QGroupBox* results = control<QGroupBox>(form, "Frame1(5)");
        QCOMPARE(results->title(), QString("Calculated Results, Flow Type = Choked Flow at Outlet"));
        QVERIFY(results->font().bold());
        QVERIFY(model->view().DirtyFlag);
        answerNextMessage(QMessageBox::No); // "Save data before closing?"
        QVERIFY(frame.close());
    }
};

class DialogWidgetsTest : public QObject {
    Q_OBJECT

private slots:
    void pipeGridShowsTheMaterialWithMergedCells()
    {
        ScriptedUserInterface ui;
        PipeModel model(ui, nullptr, QCoreApplication::applicationDirPath());
        model.Form_Load();
        frmPipe dialog(model, ui, nullptr);
        dialog.show();
        auto* grid = dialog.findChild<QTableWidget*>("grdPipeSize(0)");
        QVERIFY(grid && grid->columnCount() > 1);
        QCOMPARE(grid->horizontalHeaderItem(1)->text(), QString(" OD, in "));
        QVERIFY(grid->rowCount() > 0 && grid->item(0, 1));
        QCOMPARE(grid->item(0, 1)->text(), QString("0.405"));
        QVERIFY(grid->rowSpan(0, 0) > 1); // equal neighbours merge
        QVERIFY(!dialog.findChild<QPushButton*>("cmdSelect")->isEnabled()); // a viewer by itself
        dialog.findChild<QRadioButton*>("optASTMMaterial(2)")->click();
        QCOMPARE(dialog.findChild<QListWidget*>("lstMaterial(0)")->item(0)->text(), QString("Copper (ASTM B88)"));
        // The marked cell: yellow text on blue.
        QVERIFY(shownInFront(dialog));
        grid->setFocus();
        grid->setCurrentCell(0, 2);
        QTest::qWait(20);
        const QRect cell = grid->visualRect(grid->model()->index(0, 2));
        const QImage picture = grid->viewport()->grab().toImage();
        int blue = 0, yellow = 0;
        for (int y = cell.top(); y <= cell.bottom(); ++y)
            for (int x = cell.left(); x <= cell.right(); ++x) {
                const QColor c = picture.pixelColor(x, y);
                blue += c.blue() > 230 && c.red() < 40 && c.green() < 40;
                yellow += c.red() > 200 && c.green() > 200 && c.blue() < 80;
            }
        QVERIFY(blue > cell.width() * cell.height() / 2); // the ground is blue
        QVERIFY(yellow > 0);                             // and the text yellow
    }

    void everyDialogFitsTheScreenAndCutsNoNumber()
    {
        forEachDialogTool([](QDialog& dialog) {
            dialog.show();
            QVERIFY(QTest::qWaitForWindowExposed(&dialog));
            QVERIFY2(dialog.width() <= 800 && dialog.height() <= 600, qPrintable(dialog.objectName()));
            expectWholeTexts(dialog);
        });
    }

    static bool shownInFront(QWidget& dialog)
    {
        dialog.show();
        dialog.activateWindow();
        return QTest::qWaitForWindowActive(&dialog);
    }

    // Types into a dialog's field and leaves it, as a user would.
    static void typeInto(QWidget* dialog, const char* name, const QString& text)
    {
        auto* field = dialog->findChild<QLineEdit*>(name);
        QVERIFY2(field, name);
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, text);
        field->clearFocus();
    }

    void gasDensityFromTypedFields()
    {
        globalUnits() = GlobalUnits{};
        ScriptedUserInterface ui;
        GasDensityModel model(ui);
        model.Form_Load();
        frmGasDensity dialog(model, ui, nullptr);
        QVERIFY(shownInFront(dialog)); // fields commit when they lose the focus
        typeInto(&dialog, "txtData(0)", "60");
        typeInto(&dialog, "txtData(1)", "14.696");
        typeInto(&dialog, "txtData(3)", "28.97");
        typeInto(&dialog, "txtData(4)", "1");
        QCOMPARE(dialog.findChild<QLineEdit*>("txtData(2)")->text(), QString("0.0763")); // air at 60 °F, 1 atm
        QVERIFY(dialog.findChild<QLineEdit*>("txtData(2)")->isReadOnly());
    }

    void roughnessOptionsShowTheirValueNewAndUsed()
    {
        globalUnits() = GlobalUnits{};
        ScriptedUserInterface ui;
        RoughnessModel model(ui, nullptr);
        model.Form_Load();
        model.Form_Activate();
        frmRoughness dialog(model, ui, nullptr);
        QVERIFY(shownInFront(dialog)); // fields commit when they lose the focus
        dialog.findChild<QRadioButton*>("optPipeRoughness(8)")->click(); // glass
        QCOMPARE(dialog.findChild<QLineEdit*>("txtData")->text(), QString("0.000001"));
        dialog.findChild<QRadioButton*>("optPipeCondition(1)")->click(); // used: three times rougher
        QCOMPARE(model.view().roughness, Single(0.000003));
    }

    void enlargementRowFromAngleAndBeta()
    {
        ScriptedUserInterface ui;
        ReducerModel model(ReducerKind::Enlargement, ui);
        model.Form_Load();
        frmReducer dialog(model, ui, nullptr);
        QVERIFY(shownInFront(dialog)); // fields commit when they lose the focus
        QCOMPARE(dialog.objectName(), QString("frmEnlargements"));
        typeInto(&dialog, "txtAngle(0)", "10");
        typeInto(&dialog, "txtBeta(0)", "0.5");
        // 2.6 sin(5°) (1 - 0.25)² = 0.1275
        QCOMPARE(dialog.findChild<QLineEdit*>("txtKValue(0)")->text(), QString("0.128"));
        auto* sketch = dialog.findChild<FittingSketch*>("imgFitting");
        dialog.findChild<QLineEdit*>("txtBeta(0)")->setFocus();
        QTRY_COMPARE(sketch->group(), QString("Gradual"));
    }

    void compoundListIsSearchedByTyping()
    {
        ScriptedUserInterface ui;
        PhysicalPropertiesModel model(ui, readCompounds(QCoreApplication::applicationDirPath() + "/compounds.sqlite"));
        frmPhysicalProperties dialog(model, ui, nullptr);
        dialog.show();
        auto* search = dialog.findChild<QLineEdit*>("txtSearch");
        QTest::keyClicks(search, "Methan"); // "Metha" would stop at Methacrylic acid
        QCOMPARE(QString::fromStdString(model.compounds()[static_cast<size_t>(model.view().position)].name), QString("Methane"));
        QCOMPARE(dialog.findChild<QGroupBox*>("Frame1(3)")->title(), QString("Physical Properties:  Methane"));
    }
};

class PrintingAndSmallFormsTest : public QObject {
    Q_OBJECT

private slots:
    void pictureIsCentredAndShrunkToThePage()
    {
        QCOMPARE(centredPicture(QSize(1000, 800), QSize(600, 400)), QRect(200, 200, 600, 400));
        // larger than the page: scaled down, proportions kept, still centred
        QCOMPARE(centredPicture(QSize(1000, 800), QSize(2000, 1000)), QRect(0, 150, 1000, 500));
        QCOMPARE(centredPicture(QSize(1000, 800), QSize(500, 1600)), QRect(375, 0, 250, 800));
    }

    void screenShotOfAFormGoesToPaper()
    {
        QTemporaryDir dir;
        QWidget form;
        form.resize(300, 200);
        form.setStyleSheet("background: rgb(0, 0, 255);");
        const QPixmap picture = captureForm(form);
        QCOMPARE(picture.size(), QSize(300, 200));
        QCOMPARE(picture.toImage().pixelColor(150, 100), QColor(0, 0, 255));

        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(dir.filePath("shot.pdf"));
        QVERIFY(printCopies(printer, picture, 3, 96));
        // Each copy is a job of its own: the file holds the last job, one page,
        // not three pages of one job.
        QFile pdf(dir.filePath("shot.pdf"));
        QVERIFY(pdf.open(QIODevice::ReadOnly));
        const QString text = QString::fromLatin1(pdf.readAll());
        QCOMPARE(text.count(QRegularExpression("/Type\\s*/Page[^s]")), 1);
        QVERIFY(text.contains("/Image"));
    }

    void companyInfoClosesOnlyPastItsQuestion()
    {
        QTemporaryDir dir;
        SettingsStore store(dir.filePath("Kestrova.ini"));
        ScriptedUserInterface ui;
        CompanyInfoModel model(ui, store);
        model.Form_Load();
        frmCompanyInfo dialog(model, ui, nullptr);
        dialog.show();
        QTest::keyClicks(dialog.findChild<QLineEdit*>("txtCompany"), "Hydro Works");
        ui.answers = {MessageAnswer::Cancel};
        dialog.reject(); // Escape or the window's close button
        QVERIFY(dialog.isVisible());
        ui.answers = {MessageAnswer::Yes};
        dialog.findChild<QPushButton*>("cmdClose")->click();
        QVERIFY(!dialog.isVisible());
        QCOMPARE(store.get("Settings", "Company", ""), std::string("Hydro Works"));
    }

    void disclaimerPutsThePointerOnAgree()
    {
        QTemporaryDir dir;
        SettingsStore store(dir.filePath("Kestrova.ini"));
        ScriptedUserInterface ui;
        frmReadDisclaimer form(ui, store, true, nullptr);
        QCursor::setPos(0, 0);
        form.show();
        form.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        auto* agree = form.findChild<QPushButton*>("cmdAgree");
        // the middle of the button, its right and bottom edges taken just past the last pixel
        const QPoint corner = agree->mapToGlobal(QPoint(0, 0));
        const QPoint middle(static_cast<int>(std::nearbyint(corner.x() + agree->width() / 2.0)),
                            static_cast<int>(std::nearbyint(corner.y() + agree->height() / 2.0)));
        QTRY_COMPARE(QCursor::pos(), middle);
        QCOMPARE(ui.statusText, std::string("You must agree in order to use Kestrova"));
        QVERIFY(!form.findChild<QCheckBox*>("chkDontShow")->isChecked());
        agree->click(); // the frame's own status text comes back at once
        QCOMPARE(ui.statusText, std::string("Select a menu item"));
    }

    void aboutBoxShowsTheVersion()
    {
        QCoreApplication::setApplicationVersion("1.2.3");
        ScriptedUserInterface ui;
        frmAbout about(ui, nullptr);
        QCOMPARE(about.findChild<QLabel*>("lblVersion")->text(), QString("Version 1.2.3"));
        QCOMPARE(about.findChild<QLabel*>("lblTitle")->text(), QCoreApplication::applicationName());
    }
};

int runFormViewTests(int argc, char** argv); // form_view_test.cpp
int runExceptionBarrierTests(int argc, char** argv); // exception_barrier_test.cpp
int runPumpNetworkWidgetTests(int argc, char** argv); // pump_network_widgets_test.cpp
int runHelpWidgetTests(int argc, char** argv); // help_widgets_test.cpp
int runSingleInstanceTests(int argc, char** argv); // single_instance_test.cpp
int runAccessibilityTests(int argc, char** argv); // accessibility_test.cpp

int main(int argc, char** argv)
{
    GuardedApplication app(argc, argv);
    QStandardPaths::setTestModeEnabled(true); // the help collection and such in a test place
    FrameWidgetsTest frame;
    DialogWidgetsTest dialogs;
    PrintingAndSmallFormsTest printing;
    return QTest::qExec(&frame, argc, argv) | QTest::qExec(&dialogs, argc, argv) | QTest::qExec(&printing, argc, argv) |
           runFormViewTests(argc, argv) | runExceptionBarrierTests(argc, argv) | runPumpNetworkWidgetTests(argc, argv) |
           runHelpWidgetTests(argc, argv) | runSingleInstanceTests(argc, argv) | runAccessibilityTests(argc, argv);
}
#include "frame_widgets_test.moc"
