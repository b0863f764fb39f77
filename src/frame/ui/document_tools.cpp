#include "frame/ui/document_tools.h"

#include "frame/ui/program_icon.h"
#include "tools/orifice/model/orifice_model.h"
#include "tools/orifice/ui/frmOrificePlates.h"
#include "tools/pressure_drop/model/pressure_drop_model.h"
#include "tools/pressure_drop/ui/frmPressureDrop.h"
#include "tools/pump_network/model/pump_network_model.h"
#include "tools/pump_network/ui/frmPumpSystem.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScrollArea>

#include <algorithm>

namespace kestrova {

namespace {

template <typename Model, typename Window>
DocumentToolKind documentTool(std::int16_t fileKind, const char* menuAction)
{
    return {fileKind, menuAction,
            [](UserInterface& ui) -> std::unique_ptr<DocumentTool> { return std::make_unique<Model>(ui); },
            [](DocumentTool& model, UserInterface& ui) -> QWidget* { return new Window(static_cast<Model&>(model), ui); }};
}

} // namespace

const std::vector<DocumentToolKind>& documentToolKinds()
{
    static const std::vector<DocumentToolKind> kinds{
        documentTool<PressureDropModel, frmPressureDrop>(2, "mnuToolsPressureDrop"),
        documentTool<OrificeModel, frmOrificePlates>(1, "mnuToolsRestrictionOrifices"),
        documentTool<PumpNetworkModel, frmPumpSystem>(3, "mnuToolsPumpNetwork"),
    };
    return kinds;
}

OpenDocuments::OpenDocuments(QMdiArea& area, UserInterface& ui, QObject& watcher)
    : area_(area), ui_(ui), watcher_(watcher)
{
    for (const DocumentToolKind& kind : documentToolKinds())
        slots_.push_back({&kind, nullptr, nullptr});
}

OpenDocuments::~OpenDocuments()
{
    // The tool windows go before the models they show.
    for (Slot& slot : slots_)
        delete slot.window;
}

DocumentTool* OpenDocuments::show(std::int16_t fileKind)
{
    for (Slot& slot : slots_)
        if (slot.kind->fileKind == fileKind)
            return show(slot);
    return nullptr;
}

DocumentTool* OpenDocuments::showFromMenu(const std::string& menuAction)
{
    for (Slot& slot : slots_)
        if (menuAction == slot.kind->menuAction)
            return show(slot);
    return nullptr;
}

DocumentTool* OpenDocuments::show(Slot& slot)
{
    // A window closed a moment ago waits for its deferred deletion: it goes
    // now, before its model, and the tool opens afresh.
    if (!slot.window || slot.window->isHidden()) {
        delete slot.window;
        slot.model = slot.kind->makeModel(ui_);
        QWidget* form = slot.kind->makeWindow(*slot.model, ui_);
        slot.model->Form_Load();
        // The form scrolls inside its window when the window is smaller than
        // it, so that nothing is ever squeezed or cut off.
        auto* scroller = new QScrollArea;
        scroller->setObjectName("formScroller");
        scroller->setWidget(form);
        scroller->setWidgetResizable(true);
        scroller->setFrameShape(QFrame::NoFrame);
        slot.window = area_.addSubWindow(scroller);
        slot.window->setAttribute(Qt::WA_DeleteOnClose);
        slot.window->setWindowIcon(programIcon());
        slot.window->setWindowTitle(form->windowTitle());
        QObject::connect(form, &QWidget::windowTitleChanged, slot.window, &QWidget::setWindowTitle);
        slot.window->installEventFilter(&watcher_);
        slot.window->show(); // its frame is known once it shows
        slot.window->resize(defaultSize(*slot.window, *form));
        slot.window->move(defaultPlace(*slot.window));
    }
    slot.window->show();
    area_.setActiveSubWindow(slot.window);
    formOf(*slot.window)->setFocus();
    return slot.model.get();
}

// The window's size at its opening: the form's own, within the area.
QSize OpenDocuments::defaultSize(const QMdiSubWindow& window, const QWidget& form) const
{
    const QSize frame = window.size() - window.widget()->size(); // the title bar and the borders
    return (form.sizeHint() + frame).boundedTo(area_.viewport()->size()).expandedTo(QSize(200, 150));
}

// A new window opens one step down and right of the one before it, and
// wholly inside the area where it fits.
QPoint OpenDocuments::defaultPlace(const QMdiSubWindow& window) const
{
    const int step = 24 * static_cast<int>(area_.subWindowList().size() - 1);
    const QSize room = area_.viewport()->size() - window.size();
    return {std::clamp(step, 0, std::max(room.width(), 0)), std::clamp(step, 0, std::max(room.height(), 0))};
}

QWidget* OpenDocuments::formOf(const QMdiSubWindow& window)
{
    const auto* scroller = qobject_cast<const QScrollArea*>(window.widget());
    return scroller ? scroller->widget() : window.widget();
}

DocumentTool* OpenDocuments::active() const
{
    return ofWindow(area_.activeSubWindow());
}

DocumentTool* OpenDocuments::ofWindow(const QObject* subWindow) const
{
    for (const Slot& slot : slots_)
        if (subWindow && slot.window == subWindow)
            return slot.model.get();
    return nullptr;
}

} // namespace kestrova
