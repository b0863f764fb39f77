// The conventions the fields of every window share (numeric keys, selection
// on entering, status texts, Enter as Tab, commit on leaving) and the
// dialogs' own small behaviours: activation on showing, the fitting sketch.

#include "forms/ui/field_conventions.h"
#include "forms/store/global_units.h"
#include "forms/model/scripted_user_interface.h"
#include "tools/orifice/ui/frmOrificePlates.h"
#include "tools/orifice/model/orifice_model.h"
#include "tools/piping/model/minor_loss_store.h"
#include "tools/piping/model/minor_losses_model.h"
#include "tools/piping/ui/piping_dialogs.h"
#include "tools/properties/model/compress_factor_model.h"
#include "tools/properties/ui/property_dialogs.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QtTest>

using namespace kestrova;

namespace {

bool refused(const QString& text, int selectionStart, int selectionLength, const QString& key, bool minus)
{
    QLineEdit field;
    field.setText(text);
    if (selectionLength > 0)
        field.setSelection(selectionStart, selectionLength);
    const QKeyEvent press(QEvent::KeyPress, key.isEmpty() ? int(Qt::Key_Backspace) : int(key.at(0).unicode()), Qt::NoModifier,
                          key);
    return numericKeyRefused(field, press, minus);
}

} // namespace

class FieldConventionsTest : public QObject {
    Q_OBJECT

    static bool exposed(QWidget& window)
    {
        window.show();
        return QTest::qWaitForWindowExposed(&window);
    }

    ScriptedUserInterface ui_;

private slots:
    void numericKeysPassOncePerSign_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("selectionStart");
        QTest::addColumn<int>("selectionLength");
        QTest::addColumn<QString>("key");
        QTest::addColumn<bool>("minus");
        QTest::addColumn<bool>("refused");
        QTest::newRow("digit") << "12.5" << 0 << 0 << "7" << false << false;
        QTest::newRow("first point") << "125" << 0 << 0 << "." << false << false;
        QTest::newRow("second point") << "12.5" << 0 << 0 << "." << false << true;
        QTest::newRow("point over the selected point") << "12.5" << 2 << 1 << "." << false << false;
        QTest::newRow("one comma beside a point") << "1.5" << 0 << 0 << "," << false << false;
        QTest::newRow("second comma") << "1,000" << 0 << 0 << "," << false << true;
        QTest::newRow("minus where allowed") << "5" << 0 << 0 << "-" << true << false;
        QTest::newRow("second minus") << "-5" << 0 << 0 << "-" << true << true;
        QTest::newRow("minus where not allowed") << "5" << 0 << 0 << "-" << false << true;
        QTest::newRow("letter") << "5" << 0 << 0 << "e" << true << true;
        QTest::newRow("backspace is not the filter's") << "5" << 0 << 0 << "" << false << false;
    }

    void numericKeysPassOncePerSign()
    {
        QFETCH(QString, text);
        QFETCH(int, selectionStart);
        QFETCH(int, selectionLength);
        QFETCH(QString, key);
        QFETCH(bool, minus);
        QFETCH(bool, refused);
        QCOMPARE(::refused(text, selectionStart, selectionLength, key, minus), refused);
    }

    void statusTextAndSelectionOnEntering()
    {
        ScriptedUserInterface ui;
        FieldConventions conventions(ui);
        QWidget form;
        auto* field = new QLineEdit("123.45", &form);
        conventions.setStatusText(field, "Flow Rate Input", &form);
        QEvent enter(QEvent::Enter);
        conventions.apply(field, &enter);
        QCOMPARE(ui.statusText, std::string("Flow Rate Input"));
        QFocusEvent focus(QEvent::FocusIn, Qt::TabFocusReason);
        conventions.apply(field, &focus);
        QTRY_COMPARE(field->selectedText(), QString("123.45"));
        // A field the user cannot type in is left alone.
        field->deselect();
        field->setReadOnly(true);
        conventions.apply(field, &focus);
        QTest::qWait(10);
        QVERIFY(!field->hasSelectedText());
    }

    void orificeWindowKeepsTheFieldConventions()
    {
        globalUnits() = GlobalUnits{};
        ScriptedUserInterface ui;
        OrificeModel model(ui);
        model.Form_Load();
        model.Form_Activate();
        frmOrificePlates form(model, ui);
        form.show();
        QVERIFY(QTest::qWaitForWindowExposed(&form));
        auto* pressure = form.findChild<QLineEdit*>("txtData(1)");
        auto* temperature = form.findChild<QLineEdit*>("txtData(3)");
        pressure->setFocus();
        QTRY_VERIFY(pressure->hasFocus());
        pressure->selectAll();
        QTest::keyClicks(pressure, "1x5");   // the letter is dropped
        QVERIFY(model.view().dirty);                // any key marks the data changed
        QTest::keyClick(pressure, Qt::Key_Return); // Enter walks on as Tab does
        QTRY_VERIFY(!pressure->hasFocus());
        QCOMPARE(model.view().record.differentialPressure, Single(15)); // committed on leaving
        QCOMPARE(pressure->text(), QString("15.00"));
        QVERIFY(temperature->hasFocus());
        // The solved flow takes no typing, and a unit list only changes what is shown.
        QVERIFY(form.findChild<QLineEdit*>("txtData(0)")->isReadOnly());
        emit form.findChild<QComboBox*>("cboUnits(1)")->activated(5); // kPa
        QCOMPARE(pressure->text(), QString("103.421")); // kPa with three decimals
        QCOMPARE(model.view().record.differentialPressure, Single(15));
    }

    void fittingSketchFollowsTheFocusedField()
    {
        minorLossStore() = MinorLossStore{};
        MinorLossesModel model(ui_);
        model.Form_Load();
        frmMinorLosses dialog(model, ui_, nullptr);
        QVERIFY(exposed(dialog));
        auto* sketch = dialog.findChild<FittingSketch*>("imgFitting");
        QVERIFY(sketch);
        QCOMPARE(sketch->group(), QString());
        auto* flush = dialog.findChild<QLineEdit*>("txtQuantity(25)");
        flush->setFocus();
        QTRY_COMPARE(sketch->group(), QString("Entrance / Exit"));
        flush->clearFocus();
        QTRY_COMPARE(sketch->group(), QString());
    }

    void propertyDialogsActivateTheirModelWhenShown()
    {
        ScriptedUserInterface ui;
        CompressFactorModel model(ui, nullptr);
        model.Form_Load();
        ui.statusText.clear();
        frmCompressFactor dialog(model, ui, true, nullptr);
        QCOMPARE(ui.statusText, std::string()); // nothing before it shows
        dialog.show();
        QCOMPARE(ui.statusText, std::string("Enter system parameters"));
    }
};

int runFieldConventionsTests(int argc, char** argv)
{
    FieldConventionsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "field_conventions_test.moc"
