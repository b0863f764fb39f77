#pragma once
// The barrier between Qt and the program's own code. Wherever Qt calls into
// the program (a form's event filter, a slot, a menu action, any event the
// application delivers), what the program throws is caught before it can
// travel back through Qt: the user sees a stop message naming the step that
// failed, the windows and their cases stay open as they are, and the program
// goes on.

#include <QApplication>

#include <concepts>
#include <functional>
#include <string>
#include <utility>

namespace kestrova {

class UserInterface;

// Runs `work`. Whatever it throws is reported (through `ui` where one is
// given, else through the installed reporter) and goes no further. False
// when the work failed.
bool runGuarded(const std::string& step, const std::function<void()>& work, UserInterface* ui = nullptr) noexcept;

// The message of a failed step, as the user reads it.
std::string failureText(const std::string& step, const std::string& what);

// Where failures without a user interface of their own are reported; the
// frame installs its own once it exists. Returns the one it replaces.
using FailureReporter = std::function<void(const std::string& text)>;
FailureReporter setFailureReporter(FailureReporter reporter);

// A slot for a connection that runs `work` under the barrier:
// connect(button, &QPushButton::clicked, this, guarded("Reset", ui, [this] { ... })).
template <typename Work>
class Guarded {
public:
    Guarded(std::string step, UserInterface* ui, Work work) : step_(std::move(step)), ui_(ui), work_(std::move(work)) {}

    template <typename... Args>
        requires std::invocable<Work&, Args...>
    void operator()(Args&&... args)
    {
        runGuarded(step_, [&] { std::invoke(work_, std::forward<Args>(args)...); }, ui_);
    }

private:
    std::string step_;
    UserInterface* ui_;
    Work work_;
};

template <typename Work>
Guarded<Work> guarded(std::string step, UserInterface& ui, Work work)
{
    return Guarded<Work>(std::move(step), &ui, std::move(work));
}

template <typename Work>
Guarded<Work> guarded(std::string step, Work work)
{
    return Guarded<Work>(std::move(step), nullptr, std::move(work));
}

// The program's application object: every event it delivers runs under the
// barrier, the last line behind the guarded entry points.
class GuardedApplication : public QApplication {
public:
    using QApplication::QApplication;
    bool notify(QObject* receiver, QEvent* event) override;
};

} // namespace kestrova
