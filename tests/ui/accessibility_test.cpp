// What a screen reader finds in the program's windows: every field, list,
// option and button of each document window, each tab, and each dialog has a
// name of its own (its caption's text, without the accelerator mark), read
// through the accessibility interfaces that the desktop's assistive
// technologies query, and a description from its tool tip or status text.

#include "tool_windows.h"
#include "widget_test_support.h"

#include "forms/ui/accessible_names.h"
#include "frame/ui/frmUnitOptions.h"
#include "tools/pressure_drop/model/pressure_drop_model.h"
#include "tools/pump_network/model/pump_network_model.h"

#include <QAccessible>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTabWidget>

#include <map>

using namespace kestrova;

namespace {

bool isInputRole(QAccessible::Role role)
{
    switch (role) {
    case QAccessible::EditableText:
    case QAccessible::ComboBox:
    case QAccessible::RadioButton:
    case QAccessible::CheckBox:
    case QAccessible::PushButton:
    case QAccessible::SpinBox:
    case QAccessible::PageTab:
    case QAccessible::Table:
    case QAccessible::List:
        return true;
    default:
        return false;
    }
}

// What a screen reader reads for one input.
struct Spoken {
    QString object; // the control's program name
    int role = 0;
    QString name;
    QString description;
};

// Every input shown under `node`, in the order of the accessible tree.
void collectInputs(QAccessibleInterface* node, std::vector<Spoken>& inputs)
{
    if (!node || node->state().invisible)
        return;
    if (isInputRole(node->role())) {
        const QObject* object = node->object();
        inputs.push_back({object ? object->objectName() : QString("(%1)").arg(node->text(QAccessible::Name)),
                          int(node->role()), node->text(QAccessible::Name), node->text(QAccessible::Description)});
    }
    for (int i = 0; i < node->childCount(); ++i)
        collectInputs(node->child(i), inputs);
}

std::vector<Spoken> spokenInputs(QWidget& window)
{
    std::vector<Spoken> inputs;
    collectInputs(QAccessible::queryAccessibleInterface(&window), inputs);
    return inputs;
}

// Every input of the window has a name that is a word, read as it shows
// (no accelerator mark, no closing colon), and no two of a kind share one,
// so that a listener can tell them apart.
void expectEveryInputNamed(QWidget& window, const QString& where)
{
    const std::vector<Spoken> inputs = spokenInputs(window);
    QVERIFY2(inputs.size() > 3, qPrintable(where));
    std::map<std::pair<int, QString>, QString> seen;
    for (const Spoken& input : inputs) {
        const QString what = where + ": " + input.object + " '" + input.name + "'";
        QVERIFY2(std::any_of(input.name.begin(), input.name.end(), [](QChar c) { return c.isLetterOrNumber(); }),
                 qPrintable(what));
        QVERIFY2(!input.name.contains(QRegularExpression("&\\w")) && !input.name.endsWith(':'), qPrintable(what));
        const auto [at, added] = seen.emplace(std::pair{input.role, input.name}, input.object);
        QVERIFY2(added, qPrintable(what + " as " + at->second));
    }
}

Spoken spokenAs(QWidget& window, const QString& object)
{
    for (const Spoken& input : spokenInputs(window))
        if (input.object == object)
            return input;
    return {};
}

} // namespace

class AccessibilityTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setApplicationName("Kestrova"); }

    void captionsAreReadWithoutTheirMarks()
    {
        QCOMPARE(spokenCaption("&Close"), QString("Close"));
        QCOMPARE(spokenCaption("Density (at T && P):"), QString("Density (at T & P)"));
        QCOMPARE(spokenCaption("A&diabatic"), QString("Adiabatic"));
        QCOMPARE(spokenCaption("<b>Liquid</b>"), QString("Liquid"));
        QCOMPARE(spokenCaption("  Total K: "), QString("Total K"));
    }

    // Each tab of each document window, as the user brings it to the front.
    void documentWindowsNameEveryInput()
    {
        FrameUnderTest under;
        QVERIFY(shownAndActive(under.frame));
        for (std::int16_t kind : {2, 1, 3}) {
            QVERIFY(under.frame.openDocumentTool(kind));
            QMdiSubWindow* window = under.frame.mdiArea()->activeSubWindow();
            auto* tabs = window->findChild<QTabWidget*>();
            for (int tab = 0; tab < (tabs ? tabs->count() : 1); ++tab) {
                if (tabs)
                    tabs->setCurrentIndex(tab);
                expectEveryInputNamed(*window, QString("%1 tab %2").arg(window->windowTitle()).arg(tab));
            }
        }
        answerNextMessage(QMessageBox::No);
        answerNextMessage(QMessageBox::No);
        answerNextMessage(QMessageBox::No);
        QVERIFY(under.frame.close());
    }

    // A unit list is read after its field, and a button of three dots by
    // its tool tip; a field without a tip of its own is described by the
    // status text of its frame. When the caption changes with the section,
    // the field and its unit list are read by the new caption.
    void namesFollowTheCaptionsOfTheirRows()
    {
        FrameUnderTest under;
        QVERIFY(shownAndActive(under.frame));
        auto* model = dynamic_cast<PressureDropModel*>(under.frame.openDocumentTool(2));
        QVERIFY(model);
        QWidget* form = frontForm(under.frame);
        QCOMPARE(spokenAs(*form, "cboUnits(0)").name, QString("Flow Rate units"));
        QCOMPARE(spokenAs(*form, "cmdTable(15)").name, QString("Flow Rate, Flow Rate Conversions"));
        QCOMPARE(spokenAs(*form, "cmdTable(15)").description, QString("Flow Rate Conversions"));
        QCOMPARE(spokenAs(*form, "txtData(0)").description, QString("Fluid Data Input"));
        QCOMPARE(spokenAs(*form, "txtData(1)").name, QString("Density (at T & P)"));
        QCOMPARE(spokenAs(*form, "txtData(3)").name, QString("Width of Conduit"));
        control<QRadioButton>(form, "optCrossSection(2)")->click(); // annular: the width becomes the inner pipe's OD
        QCOMPARE(control<QLabel>(form, "Label1(4)")->text(), QString("OD of Inner Pipe:"));
        QCOMPARE(spokenAs(*form, "txtData(3)").name, QString("OD of Inner Pipe"));
        QCOMPARE(spokenAs(*form, "cboUnits(3)").name, QString("OD of Inner Pipe units"));
        QCOMPARE(spokenAs(*form, "cmdTable(3)").name, QString("OD of Inner Pipe, Show Table"));
        // The unit list's value is still its unit, read after its name.
        QAccessibleInterface* units = QAccessible::queryAccessibleInterface(control<QComboBox>(form, "cboUnits(3)"));
        QCOMPARE(units->text(QAccessible::Value), control<QComboBox>(form, "cboUnits(3)")->currentText());
        QCOMPARE(units->role(), QAccessible::ComboBox);
        answerNextMessage(QMessageBox::No);
        QVERIFY(under.frame.close());
    }

    void dialogsNameEveryInput()
    {
        forEachDialogTool([](QDialog& dialog) {
            dialog.show();
            QVERIFY(QTest::qWaitForWindowExposed(&dialog));
            expectEveryInputNamed(dialog, dialog.objectName());
        });
        FrameUnderTest under;
        frmUnitOptions units(under.frame.userInterface(), under.store, nullptr);
        units.show();
        QVERIFY(QTest::qWaitForWindowExposed(&units));
        expectEveryInputNamed(units, units.objectName());
    }

    void pumpNetworkSegmentDialogNamesEveryInput()
    {
        FrameUnderTest under;
        QVERIFY(shownAndActive(under.frame));
        auto* model = dynamic_cast<PumpNetworkModel*>(under.frame.openDocumentTool(3));
        QVERIFY(model);
        bool checked = false;
        inNextDialog("frmPumpSystemInput", [&checked](QDialog& dialog) {
            expectEveryInputNamed(dialog, dialog.objectName());
            checked = true;
        }, "cmdOK");
        model->grdSummary_DblClick(2);
        QTRY_VERIFY(checked);
        answerNextMessage(QMessageBox::No);
        QVERIFY(under.frame.close());
    }
};

int runAccessibilityTests(int argc, char** argv)
{
    AccessibilityTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "accessibility_test.moc"
