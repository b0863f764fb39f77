#include "forms/ui/accessible_names.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QBoxLayout>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QStackedWidget>
#include <QTextDocumentFragment>
#include <QWidget>

#include <algorithm>
#include <map>
#include <tuple>
#include <utility>
#include <vector>

namespace kestrova {

namespace {

// The property that marks a name derived here, as opposed to one the window gave.
constexpr const char* kDerivedNameProperty = "derivedAccessibleName";

bool hasWord(const QString& text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetterOrNumber(); });
}

// The widgets of the row a widget sits in, by column, and the widget's own
// column: a row of a grid, or a row of widgets side by side. A widget in a
// row of its own inside a grid's cell (several fields side by side) sits
// where that row sits.
struct Row {
    std::vector<std::pair<int, QWidget*>> cells;
    int column = -1;
};

Row gridRow(QGridLayout& grid, int index)
{
    Row found;
    int row = 0, rowSpan = 0, columnSpan = 0;
    grid.getItemPosition(index, &row, &found.column, &rowSpan, &columnSpan);
    for (int i = 0; i < grid.count(); ++i) {
        int r = 0, c = 0, rs = 0, cs = 0;
        grid.getItemPosition(i, &r, &c, &rs, &cs);
        if (QWidget* widget = grid.itemAt(i)->widget(); widget && r <= row && row < r + rs)
            found.cells.emplace_back(c, widget);
    }
    return found;
}

Row boxRow(QBoxLayout& box, int index)
{
    Row found{{}, index};
    for (int i = 0; i < box.count(); ++i)
        if (QWidget* widget = box.itemAt(i)->widget())
            found.cells.emplace_back(i, widget);
    return found;
}

// Where a widget or a row of widgets sits: its layout and its place there.
struct Slot {
    QLayout* layout = nullptr;
    int index = -1;
};

// What the naming looks up in a window, gathered once per naming.
struct Form {
    explicit Form(QWidget& w) : window(w)
    {
        for (QLabel* label : w.findChildren<QLabel*>())
            if (label->buddy())
                buddies.emplace(label->buddy(), label);
        for (QLayout* layout : w.findChildren<QLayout*>())
            for (int i = 0; i < layout->count(); ++i) {
                QLayoutItem* item = layout->itemAt(i);
                if (item->widget())
                    places.emplace(item->widget(), Slot{layout, i});
                else if (item->layout())
                    places.emplace(item->layout(), Slot{layout, i});
            }
    }
    Slot slotOf(const QObject* widgetOrLayout) const
    {
        const auto found = places.find(widgetOrLayout);
        return found == places.end() ? Slot{} : found->second;
    }
    QWidget& window;
    std::map<const QWidget*, const QLabel*> buddies; // each captioned widget's caption
    std::map<const QObject*, Slot> places;
};

Row rowOf(const Form& form, const QWidget& widget)
{
    const auto [holder, index] = form.slotOf(&widget);
    if (!holder)
        return {};
    if (auto* grid = qobject_cast<QGridLayout*>(holder))
        return gridRow(*grid, index);
    auto* box = qobject_cast<QBoxLayout*>(holder);
    if (!box || box->direction() != QBoxLayout::LeftToRight)
        return {};
    if (Row row = boxRow(*box, index); std::any_of(row.cells.begin(), row.cells.end(), [&](const auto& cell) {
            return cell.first < index && qobject_cast<QLabel*>(cell.second);
        }))
        return row; // its caption sits beside it in the same row
    if (const auto [outer, at] = form.slotOf(holder); auto* grid = qobject_cast<QGridLayout*>(outer))
        return gridRow(*grid, at);
    return {};
}

// The widget of the row nearest to the left of the widget's column that `accept` takes.
template <typename Accept>
QWidget* nearestLeft(const Row& row, Accept accept)
{
    QWidget* nearest = nullptr;
    int nearestColumn = -1;
    for (const auto& [column, widget] : row.cells)
        if (column < row.column && column > nearestColumn && accept(*widget)) {
            nearest = widget;
            nearestColumn = column;
        }
    return nearest;
}

QString rowCaption(const Row& row)
{
    QWidget* caption = nearestLeft(row, [](QWidget& widget) {
        auto* label = qobject_cast<QLabel*>(&widget);
        return label && !label->buddy() && hasWord(label->text());
    });
    return caption ? spokenCaption(static_cast<QLabel*>(caption)->text()) : QString();
}

// The name of the field to the left of a widget in its row, if it has one.
QString fieldToTheLeft(const Form& form, const QWidget& widget)
{
    QWidget* field =
        nearestLeft(rowOf(form, widget), [](QWidget& cell) { return qobject_cast<QLineEdit*>(&cell) != nullptr; });
    return field ? field->accessibleName() : QString();
}

QString unitListName(const Form& form, const QWidget& list)
{
    const QString field = fieldToTheLeft(form, list);
    return field.isEmpty() ? QString() : field + " units";
}

// A button with a word in its caption is read by its caption. One without
// ("...") is read by its tool tip, after the field it serves when it sits
// in that field's row ("Width of Conduit, Show Table").
QString buttonName(const Form& form, const QAbstractButton& button)
{
    if (hasWord(button.text()))
        return spokenCaption(button.text());
    if (button.toolTip().isEmpty())
        return {};
    const QString field = fieldToTheLeft(form, button);
    return field.isEmpty() ? button.toolTip() : field + ", " + button.toolTip();
}

QString buddyCaption(const Form& form, const QWidget& widget)
{
    const auto caption = form.buddies.find(&widget);
    if (caption == form.buddies.end() || !hasWord(caption->second->text()))
        return {};
    return spokenCaption(caption->second->text());
}

QString groupTitle(const QWidget& widget)
{
    auto* group = qobject_cast<QGroupBox*>(widget.parentWidget());
    if (!group || !hasWord(group->title()))
        return {};
    int inputs = 0;
    for (const QWidget* child : group->findChildren<QWidget*>())
        inputs += isInput(*child) ? 1 : 0;
    return inputs == 1 ? spokenCaption(group->title()) : QString();
}

QString derivedName(const Form& form, QWidget& input, const OwnText& statusText)
{
    if (QString name = buddyCaption(form, input); !name.isEmpty())
        return name;
    if (input.property(kUnitListProperty).toBool())
        return unitListName(form, input);
    if (qobject_cast<QAbstractButton*>(&input))
        return buttonName(form, static_cast<QAbstractButton&>(input));
    if (QString name = rowCaption(rowOf(form, input)); !name.isEmpty())
        return name;
    if (QString name = groupTitle(input); !name.isEmpty())
        return name;
    return statusText ? statusText(input) : QString();
}

// A list of choices read by its name on every platform. The toolkit reads a
// list's current entry as its name on this desktop and leaves the caption to
// the label whose buddy the list is; a unit list beside its field has no
// such label. Here the name is the list's own accessible name (its current
// entry when it has none), its value the current entry, and the list opens
// through the press and menu actions.
class NamedListAccessible : public QAccessibleWidget {
public:
    explicit NamedListAccessible(QComboBox* list) : QAccessibleWidget(list, QAccessible::ComboBox) {}

    QString text(QAccessible::Text t) const override
    {
        switch (t) {
        case QAccessible::Name:
            return list()->accessibleName().isEmpty() ? list()->currentText() : list()->accessibleName();
        case QAccessible::Value:
            return list()->currentText();
        default:
            return QAccessibleWidget::text(t);
        }
    }

    QAccessible::State state() const override
    {
        QAccessible::State s = QAccessibleWidget::state();
        s.expandable = true;
        s.hasPopup = true;
        const bool open = list()->view() && list()->view()->isVisible();
        s.expanded = open;
        s.collapsed = !open;
        return s;
    }

    QStringList actionNames() const override
    {
        return QStringList{showMenuAction(), pressAction()} + QAccessibleWidget::actionNames();
    }

    void doAction(const QString& action) override
    {
        if (action == showMenuAction() || action == pressAction())
            list()->showPopup();
        else
            QAccessibleWidget::doAction(action);
    }

private:
    QComboBox* list() const { return static_cast<QComboBox*>(widget()); }
};

QAccessibleInterface* namedListFactory(const QString& className, QObject* object)
{
    auto* list = qobject_cast<QComboBox*>(object);
    if (className != QLatin1String("QComboBox") || !list || list->isEditable())
        return nullptr;
    return new NamedListAccessible(list);
}

// The page an input is read on: the tab page it sits on, or the window.
const QWidget* pageOf(const QWidget& window, const QWidget& input)
{
    for (const QWidget* widget = &input; widget && widget != &window; widget = widget->parentWidget())
        if (qobject_cast<const QStackedWidget*>(widget->parentWidget()))
            return widget;
    return &window;
}

// Inputs of one kind on one page that the captions name alike ("Material:"
// for the plate and for the pipe) are told apart by the titles of their
// frames. A field and an option of the same name are told apart by their
// kinds, which a screen reader says.
void tellApart(const QWidget& window, const std::vector<QWidget*>& derived)
{
    using Use = std::tuple<const QWidget*, const char*, QString>;
    const auto useOf = [&window](const QWidget& input) {
        return Use{pageOf(window, input), input.metaObject()->className(), input.accessibleName()};
    };
    std::map<Use, int> uses;
    for (const QWidget* input : window.findChildren<QWidget*>())
        if (isInput(*input) && !input->accessibleName().isEmpty())
            ++uses[useOf(*input)];
    for (QWidget* input : derived) {
        const auto* group = qobject_cast<const QGroupBox*>(input->parentWidget());
        if (group && hasWord(group->title()) && uses[useOf(*input)] > 1)
            input->setAccessibleName(spokenCaption(group->title()) + ", " + input->accessibleName());
    }
}

} // namespace

QString spokenCaption(const QString& text)
{
    // A caption in rich text ("<b>Liquid</b>") is read as its plain text.
    const QString caption = Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
    QString spoken;
    spoken.reserve(caption.size());
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&' && i + 1 < caption.size())
            ++i; // the accelerator mark goes; "&&" leaves one "&"
        spoken += caption[i];
    }
    spoken = spoken.trimmed();
    if (spoken.endsWith(':'))
        spoken.chop(1);
    return spoken.trimmed();
}

bool isInput(const QWidget& widget)
{
    return qobject_cast<const QLineEdit*>(&widget) || qobject_cast<const QComboBox*>(&widget) ||
           qobject_cast<const QAbstractButton*>(&widget) || qobject_cast<const QAbstractSpinBox*>(&widget) ||
           qobject_cast<const QAbstractItemView*>(&widget);
}

void nameInputs(QWidget& window, const OwnText& statusText)
{
    static const bool listsReadByName = [] {
        QAccessible::installFactory(namedListFactory);
        return true;
    }();
    Q_UNUSED(listsReadByName);
    std::vector<QWidget*> inputs;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        // An editable list's own field and the scroll bars' buttons belong to their list.
        if (!isInput(*widget) || qobject_cast<QComboBox*>(widget->parentWidget()) ||
            qobject_cast<QAbstractItemView*>(widget->parentWidget()))
            continue;
        if (!widget->accessibleName().isEmpty() && !widget->property(kDerivedNameProperty).toBool())
            continue; // named by its window
        widget->setAccessibleName({});
        inputs.push_back(widget);
    }
    // Lists of units are named after their fields: the fields first.
    std::stable_partition(inputs.begin(), inputs.end(),
                          [](const QWidget* input) { return !input->property(kUnitListProperty).toBool(); });
    const Form form(window);
    for (QWidget* input : inputs) {
        const QString name = derivedName(form, *input, statusText);
        input->setAccessibleName(name);
        input->setProperty(kDerivedNameProperty, !name.isEmpty());
    }
    tellApart(window, inputs);
}

} // namespace kestrova
