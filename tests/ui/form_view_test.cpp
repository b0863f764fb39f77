// The conventions the controls of every window share, in the one view that
// binds them to a model: the keys a field takes by its role, selection on
// entering, status texts, Enter as Tab, commit on leaving, a redraw of only
// what changed, a frame whose caption alone turns bold and red; and the
// dialogs' own small behaviours: activation on showing, the fitting sketch.

#include "forms/model/form_model.h"
#include "forms/model/scripted_user_interface.h"
#include "forms/store/global_units.h"
#include "forms/ui/form_view.h"
#include "tools/orifice/model/orifice_model.h"
#include "tools/orifice/ui/frmOrificePlates.h"
#include "tools/piping/model/minor_loss_store.h"
#include "tools/piping/model/minor_losses_model.h"
#include "tools/piping/ui/piping_dialogs.h"
#include "tools/pressure_drop/model/pressure_drop_model.h"
#include "tools/pressure_drop/ui/frmPressureDrop.h"
#include "tools/properties/model/compress_factor_model.h"
#include "tools/properties/ui/property_dialogs.h"

#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QVBoxLayout>
#include <QtTest>

using namespace kestrova;

namespace {

bool refused(const QString& text, int selectionStart, int selectionLength, const QString& key, KeyRule rule)
{
    QLineEdit field;
    field.setText(text);
    if (selectionLength > 0)
        field.setSelection(selectionStart, selectionLength);
    const QKeyEvent press(QEvent::KeyPress, key.isEmpty() ? int(Qt::Key_Backspace) : int(key.at(0).unicode()), Qt::NoModifier,
                          key);
    return keyRefused(field, press, rule);
}

// A form of two fields and a frame, which records what reaches it.
class TwoFieldModel : public FormModel {
public:
    TwoFieldModel()
    {
        first.keys = second.keys = KeyRule::Number;
        controls().add(Control{"txtFirst"}, first);
        controls().add(Control{"txtSecond"}, second);
        controls().add(Control{"Frame1"}, frame);
    }
    void commit(const Control& field, const std::string& text) override
    {
        ChangeNotice notice(*this);
        committed.push_back(field.name() + "=" + text);
        if (field == Control{"txtFirst"})
            first.text = text + "0"; // the model shows its own text for what was typed
    }
    void keyTyped(const Control&) override { ++keys; }

    TextControl first, second;
    FrameControl frame{"Results"};
    std::vector<std::string> committed;
    int keys = 0;
};

// Counts the events that restyle a widget.
class RestyleCounter : public QObject {
public:
    int count = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange ||
            event->type() == QEvent::FontChange)
            ++count;
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

class FormViewTest : public QObject {
    Q_OBJECT

    static bool exposed(QWidget& window)
    {
        window.show();
        return QTest::qWaitForWindowExposed(&window);
    }
    static bool active(QWidget& window)
    {
        window.show();
        window.activateWindow();
        return QTest::qWaitForWindowActive(&window);
    }

    ScriptedUserInterface ui_;

private slots:
    void keysPassByTheFieldsRule_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("selectionStart");
        QTest::addColumn<int>("selectionLength");
        QTest::addColumn<QString>("key");
        QTest::addColumn<int>("rule");
        QTest::addColumn<bool>("refused");
        const int number = int(KeyRule::Number), signedNumber = int(KeyRule::SignedNumber);
        QTest::newRow("digit") << "12.5" << 0 << 0 << "7" << number << false;
        QTest::newRow("first point") << "125" << 0 << 0 << "." << number << false;
        QTest::newRow("second point") << "12.5" << 0 << 0 << "." << number << true;
        QTest::newRow("point over the selected point") << "12.5" << 2 << 1 << "." << number << false;
        QTest::newRow("one comma beside a point") << "1.5" << 0 << 0 << "," << number << false;
        QTest::newRow("second comma") << "1,000" << 0 << 0 << "," << number << true;
        QTest::newRow("minus where allowed") << "5" << 0 << 0 << "-" << signedNumber << false;
        QTest::newRow("second minus") << "-5" << 0 << 0 << "-" << signedNumber << true;
        QTest::newRow("minus where not allowed") << "5" << 0 << 0 << "-" << number << true;
        QTest::newRow("letter") << "5" << 0 << 0 << "e" << signedNumber << true;
        QTest::newRow("backspace is not the filter's") << "5" << 0 << 0 << "" << number << false;
        QTest::newRow("a count takes digits") << "1" << 0 << 0 << "2" << int(KeyRule::Digits) << false;
        QTest::newRow("a count takes no point") << "1" << 0 << 0 << "." << int(KeyRule::Digits) << true;
        QTest::newRow("a text takes any key") << "a" << 0 << 0 << "-" << int(KeyRule::Text) << false;
    }

    void keysPassByTheFieldsRule()
    {
        QFETCH(QString, text);
        QFETCH(int, selectionStart);
        QFETCH(int, selectionLength);
        QFETCH(QString, key);
        QFETCH(int, rule);
        QFETCH(bool, refused);
        QCOMPARE(::refused(text, selectionStart, selectionLength, key, static_cast<KeyRule>(rule)), refused);
    }

    void typingCommitsOnLeavingAndRedrawsOnlyWhatChanged()
    {
        ScriptedUserInterface ui;
        TwoFieldModel model;
        QWidget form;
        FormView view(model, ui, form);
        view.setEnterAsTab(true);
        auto* layout = new QVBoxLayout(&form);
        QLineEdit* first = view.field(Control{"txtFirst"});
        QLineEdit* second = view.field(Control{"txtSecond"});
        QGroupBox* frame = view.frame(Control{"Frame1"}, "Results");
        layout->addWidget(first);
        layout->addWidget(second);
        layout->addWidget(frame);
        view.status(first, "Flow Rate Input");
        connect(&model, &FormModel::changed, &form, [&view] { view.render(); });
        view.render();
        QVERIFY(active(form));

        RestyleCounter restyles;
        for (QWidget* widget : {static_cast<QWidget*>(second), static_cast<QWidget*>(frame)})
            widget->installEventFilter(&restyles);
        first->setFocus();
        QTRY_VERIFY(first->hasFocus());
        QTest::keyClicks(first, "1x2"); // the letter is dropped
        QCOMPARE(first->text(), QString("12"));
        QCOMPARE(model.keys, 2);
        QVERIFY(model.committed.empty()); // nothing is taken while typing
        QTest::keyClick(first, Qt::Key_Return); // Enter walks on as Tab does
        QTRY_VERIFY(second->hasFocus());
        QCOMPARE(model.committed, std::vector<std::string>{"txtFirst=12"});
        QCOMPARE(first->text(), QString("120")); // the model's text, shown again
        QCOMPARE(restyles.count, 0); // the other controls were not touched

        // The frame's caption turns bold and red; its children keep their font.
        model.frame = {"Results, Flow Type = Choked Flow at Outlet", true, true};
        view.render();
        QVERIFY(frame->font().bold() || frame->styleSheet().contains("bold"));
        QVERIFY(frame->styleSheet().contains("color: #ff0000"));
        QVERIFY(!first->font().bold());
        auto* inside = new QLineEdit(frame);
        QVERIFY(!inside->font().bold());

        // The status text shows as the pointer enters.
        QEvent enter(QEvent::Enter);
        QCoreApplication::sendEvent(first, &enter);
        QCOMPARE(ui.statusText, std::string("Flow Rate Input"));
    }

    void theChokedCaptionIsRedOnScreenAndItsFieldsAreNotBold()
    {
        globalUnits() = GlobalUnits{};
        minorLossStore() = MinorLossStore{};
        ScriptedUserInterface ui;
        PressureDropModel model(ui);
        model.Form_Load();
        frmPressureDrop form(model, ui);
        form.resize(1000, 700);
        QVERIFY(exposed(form));
        model.Form_Activate();
        model.SSTab1_Click(1);
        for (const auto& [field, text] : {std::pair{11, "30000"}, {12, "100"}, {14, "0.018"}, {15, "4.026"}, {17, "20000"}})
            model.commit(pressure_drop::txtData(field), text);
        for (const auto& [display, text] : {std::pair{4, "28.97"}, {5, "1"}, {6, "1.4"}})
            model.commit(pressure_drop::txtDisplay(display), text);
        auto* results = form.findChild<QGroupBox*>("Frame1(5)");
        QCOMPARE(results->title(), QString("Calculated Results, Flow Type = Choked Flow at Outlet"));
        // Pure red pixels on the caption's line, and none in the frame's fields.
        const QImage picture = results->grab().toImage();
        const int captionHeight = results->fontMetrics().height() + 4;
        int red = 0;
        for (int y = 0; y < captionHeight; ++y)
            for (int x = 0; x < picture.width(); ++x)
                red += picture.pixelColor(x, y) == QColor(255, 0, 0);
        QVERIFY(red > 20);
        for (QLineEdit* field : results->findChildren<QLineEdit*>())
            QVERIFY2(!field->font().bold(), qPrintable(field->objectName()));
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
        auto* units = form.findChild<QComboBox*>("cboUnits(1)"); // the lists of the tab in front are in the tab order
        QVERIFY(units->hasFocus());
        QTest::keyClick(units, Qt::Key_Return);
        QTRY_VERIFY(temperature->hasFocus());
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

    void fittingQuantitiesTakeDigitsAndTheArrowsWalk()
    {
        minorLossStore() = MinorLossStore{};
        MinorLossesModel model(ui_);
        model.Form_Load();
        frmMinorLosses dialog(model, ui_, nullptr);
        QVERIFY(active(dialog));
        auto* first = dialog.findChild<QLineEdit*>("txtQuantity(25)");
        auto* second = dialog.findChild<QLineEdit*>("txtQuantity(26)");
        first->setFocus();
        QTRY_VERIFY(first->hasFocus());
        QTest::keyClicks(first, "1.5"); // a count: the point is dropped
        QCOMPARE(first->text(), QString("15"));
        QCOMPARE(model.view().txtTotalK1.text, "2,400"); // summed as typed: 15 flush entrances
        QTest::keyClick(first, Qt::Key_Down);
        QTRY_VERIFY(second->hasFocus());
        QTest::keyClick(second, Qt::Key_Up);
        QTRY_VERIFY(first->hasFocus());
    }

    void propertyDialogsActivateTheirModelWhenShown()
    {
        ScriptedUserInterface ui;
        CompressFactorModel model(ui, nullptr);
        model.Form_Load();
        ui.statusText.clear();
        frmCompressFactor dialog(model, ui, nullptr);
        QCOMPARE(ui.statusText, std::string()); // nothing before it shows
        dialog.show();
        QCOMPARE(ui.statusText, std::string("Enter system parameters"));
    }
};

int runFormViewTests(int argc, char** argv)
{
    FormViewTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "form_view_test.moc"
