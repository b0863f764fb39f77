// The pump network window and its segment dialog under the offscreen
// platform, worked through their widgets: fields typed, unit lists picked,
// the grid double-clicked, the drawing pressed, the scroll bar moved.

#include "widget_test_support.h"

#include "../tools/pump_network/cooling_water_network.h"

#include "forms/model/scripted_user_interface.h"
#include "numeric/display_mask.h"
#include "tools/piping/model/minor_loss_store.h"
#include "tools/pump_network/model/pump_network_model.h"
#include "tools/pump_network/ui/network_drawing.h"

#include <QComboBox>
#include <QHeaderView>
#include <QScrollBar>
#include <QSplitter>
#include <QTableWidget>

#include <functional>

using namespace kestrova;

namespace {

// Picks a unit as a user does: the list shows the entry and says so.
void pick(QComboBox* list, int entry)
{
    list->setCurrentIndex(entry);
    emit list->activated(entry);
}

// Runs `work` on the segment dialog once it shows, then closes it with OK.
void inNextSegmentDialog(std::function<void(QDialog&)> work)
{
    inNextDialog("frmPumpSystemInput", std::move(work), "cmdOK");
}

// The pointer moved over a widget, whether or not the platform has a pointer.
void moveOver(QWidget* widget, QPoint at)
{
    QMouseEvent move(QEvent::MouseMove, at, widget->mapToGlobal(at), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &move);
}

QPoint cellCentre(QTableWidget* grid, int row, int column)
{
    return grid->visualRect(grid->model()->index(row, column)).center();
}

} // namespace

class PumpNetworkWidgetsTest : public QObject {
    Q_OBJECT

private:
    static PumpNetworkModel* openTool(frmMain& frame)
    {
        frame.action("mnuToolsPumpNetwork")->trigger();
        return dynamic_cast<PumpNetworkModel*>(frame.openDocumentTool(3));
    }

private slots:
    void initTestCase()
    {
        QApplication::setApplicationName("Kestrova");
        minorLossStore() = MinorLossStore{};
    }

    // The cooling water loop typed into the window and the dialog gives the
    // calculation's pass on the same numbers, and shows it.
    void aNetworkTypedIntoTheWidgetsGivesThePassOfTheCalculation()
    {
        FrameUnderTest under;
        QVERIFY(shownAndActive(under.frame));
        PumpNetworkModel* model = openTool(under.frame);
        QVERIFY(model);
        QWidget* form = frontForm(under.frame);
        QCOMPARE(form->windowTitle(), QString("Pump System"));

        inNextSegmentDialog([](QDialog& dialog) {
            pick(control<QComboBox>(&dialog, "cboUnits(0)"), 1); // ft
            pick(control<QComboBox>(&dialog, "cboUnits(1)"), 0); // in
            pick(control<QComboBox>(&dialog, "cboUnits(2)"), 1); // ft
            pick(control<QComboBox>(&dialog, "cboUnits(3)"), 0); // lbm/ft³
            pick(control<QComboBox>(&dialog, "cboUnits(4)"), 2); // kg/m-s
            auto* scroll = control<QScrollBar>(&dialog, "scrLineNumber");
            const auto& pipes = coolingWaterPipes();
            for (size_t line = 1; line <= pipes.size(); ++line) {
                const TypedPipe& p = pipes[line - 1];
                typeAll(&dialog, {{"txtData(0)", p.length}, {"txtData(1)", p.id}, {"txtData(2)", p.roughness},
                                  {"txtData(3)", p.density}, {"txtData(4)", p.viscosity}, {"txtData(5)", p.added}});
                if (line < pipes.size())
                    scroll->triggerAction(QAbstractSlider::SliderSingleStepSub); // the arrow up: the next line
            }
            QCOMPARE(control<QLineEdit>(&dialog, "txtLineNumber")->text(), QString("11"));
        });
        auto* grid = control<QTableWidget>(form, "grdSummary");
        grid->scrollToItem(grid->item(pump_network::FlowRow, 2));
        // A double click comes after the click that picked the cell.
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, cellCentre(grid, pump_network::FlowRow, 2));
        QTest::mouseDClick(grid->viewport(), Qt::LeftButton, {}, cellCentre(grid, pump_network::FlowRow, 2));
        QTRY_VERIFY(!QApplication::activeModalWidget());
        QApplication::setActiveWindow(&under.frame); // the window's fields take the focus again
        QVERIFY(QTest::qWaitForWindowActive(&under.frame));

        const auto& ends = coolingWaterDestinations();
        for (size_t t = 0; t < ends.size(); ++t) {
            const auto field = [t](int k) { return QString("txtData(%1)").arg(3 * t + static_cast<size_t>(k)); };
            pick(control<QComboBox>(form, QString("cboUnits(%1)").arg(3 * t + 2)), 1); // ft
            type(control<QLineEdit>(form, field(0)), ends[t].flow);
            type(control<QLineEdit>(form, field(1)), ends[t].pressure);
            type(control<QLineEdit>(form, field(2)), ends[t].height);
        }
        pick(control<QComboBox>(form, "cboUnits(18)"), 1);
        type(control<QLineEdit>(form, "txtData(18)"), kCoolingWaterSourceHeight);

        const CoolingWaterPass pass = coolingWaterPass();
        const NetworkState& shown = model->view().network;
        QVERIFY(model->view().segments.SegID == pass.pipes.SegID);
        QVERIFY(model->view().segments.SegVisc == pass.pipes.SegVisc);
        QVERIFY(shown.NetDpLine == pass.network.NetDpLine);
        QVERIFY(shown.NetDpCV == pass.network.NetDpCV);
        QCOMPARE(shown.PumpHead, pass.network.PumpHead);
        QCOMPARE(control<QLineEdit>(form, "txtData(27)")->text(),
                 QString::fromStdString(formatMask(pass.network.PumpHead, "##,##0.00")));
        QCOMPARE(grid->item(pump_network::FlowRow, 2)->text(), QString("94,000"));
        QCOMPARE(grid->item(pump_network::DiameterRow, 11)->text(), QString("2.0670"));
        QCOMPARE(grid->item(pump_network::K1Row, 2)->text(), QString()); // a zero shows empty
        expectWholeTexts(*form);
        answerNextMessage(QMessageBox::No); // "Save data before closing?"
        QVERIFY(under.frame.close());
    }

    // A row's unit list changes that row only; the cells of lines without a
    // valve take the button face.
    void gridRowsKeepTheirOwnUnits()
    {
        FrameUnderTest under;
        QVERIFY(shownAndActive(under.frame));
        PumpNetworkModel* model = openTool(under.frame);
        QWidget* form = frontForm(under.frame);
        auto* grid = control<QTableWidget>(form, "grdSummary");
        model->useNetwork(NetworkState{}, coolingWaterPass().pipes);
        model->NetCalc();
        QCOMPARE(grid->item(pump_network::DiameterRow, 2)->text(), QString("6.0650"));
        pick(control<QComboBox>(grid, "cboUnits(35)"), 3); // mm
        QCOMPARE(grid->item(pump_network::DiameterRow, 2)->text(), QString("154.05"));
        QCOMPARE(grid->item(pump_network::LengthRow, 2)->text(), QString("20.00"));
        QCOMPARE(control<QComboBox>(form, "cboUnits(1)")->currentIndex(), 0); // line 5's pressure keeps psia
        const QColor face = grid->palette().color(QPalette::Button);
        QCOMPARE(grid->item(pump_network::ValveDropRow, 2)->background().color(), face); // line 1: no valve
        QVERIFY(grid->item(pump_network::ValveDropRow, 4)->background().color() != face); // line 3's valve
        QCOMPARE(grid->item(pump_network::FlowRow, 5)->toolTip(), QString("Flow Rate in Pipe Segment 4"));
    }

    // A kind 3 file opens in the pump network window, from File Open and
    // from the recent files, and a file of another kind in its own tool.
    void networkFilesOpenInTheirWindow()
    {
        FrameUnderTest under;
        {
            ScriptedUserInterface ui;
            PumpNetworkModel tool(ui);
            tool.Form_Load();
            tool.useNetwork(NetworkState{}, coolingWaterPass().pipes);
            tool.commit(pump_network::txtData(pump_network::Line5Flow), "60,000");
            tool.setStrFileName(under.dir.filePath("loop.ksv").toStdString());
            QVERIFY(tool.OpenSaveData("Save"));
        }
        QVERIFY(shownAndActive(under.frame));
        under.frame.openFile(under.dir.filePath("loop.ksv"));
        QWidget* form = frontForm(under.frame);
        QCOMPARE(form->objectName(), QString("frmPumpSystem"));
        QCOMPARE(under.frame.mdiArea()->activeSubWindow()->windowTitle(), QString("Pump System: loop.ksv"));
        QCOMPARE(control<QLineEdit>(form, "txtData(0)")->text(), QString("60,000"));
        QCOMPARE(control<QTableWidget>(form, "grdSummary")->item(pump_network::FlowRow, 5)->text(), QString("60,000"));
        QVERIFY(under.frame.action("mnuFileMRU(1)")->text().contains("loop.ksv"));
        under.frame.mdiArea()->activeSubWindow()->close();
        QCOMPARE(under.frame.mdiArea()->subWindowList().size(), 0);
        under.frame.action("mnuFileMRU(1)")->trigger();
        QCOMPARE(frontForm(under.frame)->objectName(), QString("frmPumpSystem"));
        QCOMPARE(control<QLineEdit>(frontForm(under.frame), "txtData(0)")->text(), QString("60,000"));
        QVERIFY(under.frame.close());
    }

    // A press on a pipe opens the dialog on its line at any size of the
    // drawing; the size button gives the grid the window and back.
    void theDrawingPicksItsLinesAtEverySize()
    {
        FrameUnderTest under;
        under.frame.resize(1400, 1000);
        QVERIFY(shownAndActive(under.frame));
        openTool(under.frame);
        QWidget* form = frontForm(under.frame);
        auto* drawing = form->findChild<NetworkDrawing*>("panNetwork");
        QVERIFY(drawing);
        const pump_network::PipeSegment& line8 = pump_network::pipeSegments()[12];
        for (const QSize size : {drawing->minimumSizeHint(), drawing->minimumSizeHint() * 1.5}) {
            drawing->resize(size);
            QString lineShown;
            inNextSegmentDialog([&lineShown](QDialog& dialog) {
                lineShown = control<QLineEdit>(&dialog, "txtLineNumber")->text();
            });
            const QPoint at = drawing->canvasToWidget((line8.from.x + line8.to.x) / 2, line8.from.y - 140).toPoint();
            moveOver(drawing, drawing->canvasToWidget(10, 10).toPoint());
            QCOMPARE(drawing->cursor().shape(), Qt::ArrowCursor);
            moveOver(drawing, at); // over a pipe: the cross
            QCOMPARE(drawing->cursor().shape(), Qt::CrossCursor);
            QTest::mouseClick(drawing, Qt::LeftButton, {}, at);
            QTRY_COMPARE(lineShown, QString("8"));
            QTRY_VERIFY(!QApplication::activeModalWidget());
        }
        auto* splitter = form->findChild<QSplitter*>("HSplitter");
        QVERIFY(splitter->sizes().value(0) > 0);
        control<QPushButton>(form, "cmdSizeGrid")->click();
        QCOMPARE(splitter->sizes().value(0), 0);
        control<QPushButton>(form, "cmdSizeGrid")->click();
        QVERIFY(splitter->sizes().value(0) > 0);
        answerNextMessage(QMessageBox::No);
        QVERIFY(under.frame.close());
    }
};

int runPumpNetworkWidgetTests(int argc, char** argv)
{
    PumpNetworkWidgetsTest tests;
    return QTest::qExec(&tests, argc, argv);
}

#include "pump_network_widgets_test.moc"
