// What the program throws under an event is stopped at the barrier where Qt
// called it: a click, a key, an event of the application. The user is told,
// and the window and its case stay as they were.

#include "forms/store/global_units.h"
#include "forms/model/scripted_user_interface.h"
#include "forms/ui/exception_barrier.h"
#include "tools/piping/model/minor_loss_store.h"
#include "tools/pressure_drop/ui/frmPressureDrop.h"
#include "tools/pressure_drop/model/pressure_drop_model.h"

#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

#include <stdexcept>

using namespace kestrova;

namespace {

// A user interface whose pipe picker fails, and whose toolbar fails once when asked to.
class FailingUserInterface : public ScriptedUserInterface {
public:
    Single SelectPipeID(const std::string&) override { throw std::runtime_error("the pipe data base could not be read"); }
    void setToolbarButtonEnabled(const std::string& key, bool enabled) override
    {
        if (failToolbarOnce) {
            failToolbarOnce = false;
            throw std::runtime_error("the toolbar is gone");
        }
        ScriptedUserInterface::setToolbarButtonEnabled(key, enabled);
    }
    bool failToolbarOnce = false;
};

// An object of the program whose own event handling throws.
class ThrowingObject : public QObject {
public:
    bool event(QEvent* e) override
    {
        if (e->type() == QEvent::User)
            throw std::logic_error("an event nobody expected");
        return QObject::event(e);
    }
};

} // namespace

class ExceptionBarrierTest : public QObject {
    Q_OBJECT

    void type(QWidget& form, const char* name, const QString& text)
    {
        auto* field = form.findChild<QLineEdit*>(name);
        QVERIFY(field);
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, text);
        field->clearFocus();
    }

    static QString text(QWidget& form, const char* name) { return form.findChild<QLineEdit*>(name)->text(); }

private slots:
    void init()
    {
        globalUnits() = GlobalUnits{};
        minorLossStore() = MinorLossStore{};
    }

    void aModelThatThrowsUnderAClickLeavesTheCaseAsItWas()
    {
        FailingUserInterface ui;
        PressureDropModel model(ui);
        frmPressureDrop form(model, ui);
        model.Form_Load();
        form.show();
        QVERIFY(QTest::qWaitForWindowExposed(&form));
        model.Form_Activate();
        for (const auto& [name, typed] : {std::pair{"txtData(0)", "36000"}, {"txtData(1)", "62.4"}, {"txtData(2)", "0.001"},
                                          {"txtData(5)", "6.065"}, {"txtData(6)", "0.00015"}})
            type(form, name, typed);
        const QString drop = text(form, "txtData(10)");
        QVERIFY(!drop.isEmpty());

        // The pipe table button: the picker throws inside the tool's click routine.
        QTest::mouseClick(form.findChild<QPushButton*>("cmdTable(0)"), Qt::LeftButton);
        QCOMPARE(ui.messages.size(), size_t(1));
        QCOMPARE(ui.messages[0].icon, MessageIcon::Stop);
        QVERIFY(ui.messages[0].text.find("the pipe data base could not be read") != std::string::npos);
        QVERIFY(ui.messages[0].text.find("The open windows and their data are kept.") != std::string::npos);
        QVERIFY(!ui.busyPointer);

        // The window and its case are there as before, and the tool still works.
        QVERIFY(form.isVisible());
        QCOMPARE(model.view().record.LiquidFlow.value(), 36000.0f);
        QCOMPARE(model.view().record.Diameter.value(), 6.065f);
        QCOMPARE(text(form, "txtData(0)"), QString("36,000.00"));
        QCOMPARE(text(form, "txtData(10)"), drop);
        type(form, "txtData(8)", "200");
        QVERIFY(text(form, "txtData(10)") != drop);
    }

    void aKeyThatFailsInTheToolIsReportedAndTypingGoesOn()
    {
        FailingUserInterface ui;
        PressureDropModel model(ui);
        frmPressureDrop form(model, ui);
        model.Form_Load();
        form.show();
        QVERIFY(QTest::qWaitForWindowExposed(&form));
        model.Form_Activate();
        ui.failToolbarOnce = true; // the first key's "Save" enabling throws, inside the form's key filter
        type(form, "txtData(0)", "1200");
        QCOMPARE(ui.messages.size(), size_t(1));
        QVERIFY(ui.messages[0].text.find("the toolbar is gone") != std::string::npos);
        QCOMPARE(model.view().record.LiquidFlow.value(), 1200.0f);
        QCOMPARE(text(form, "txtData(0)"), QString("1,200.00"));
    }

    void theApplicationCatchesWhatNoOtherBarrierDid()
    {
        QVERIFY(dynamic_cast<GuardedApplication*>(QCoreApplication::instance()));
        std::vector<std::string> reported;
        const FailureReporter previous = setFailureReporter([&](const std::string& text) { reported.push_back(text); });
        ThrowingObject object;
        QEvent event(QEvent::User);
        QCoreApplication::sendEvent(&object, &event);
        setFailureReporter(previous);
        QCOMPARE(reported.size(), size_t(1));
        QVERIFY(reported[0].find("an event nobody expected") != std::string::npos);
    }
};

int runExceptionBarrierTests(int argc, char** argv)
{
    ExceptionBarrierTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "exception_barrier_test.moc"
