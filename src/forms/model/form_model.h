#pragma once
// The base of every presentation model: a change signal that the form's
// widget re-renders on, sent once when the outermost event routine ends.

#include <QObject>

namespace kestrova {

class FormModel : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    // A dialog model asks its window to close (hide) through this flag.
    bool closeRequested = false;

signals:
    void changed();

protected:
    // Put at the top of each event routine.
    class ChangeNotice {
    public:
        explicit ChangeNotice(FormModel& model) : model_(model) { ++model_.eventDepth_; }
        ~ChangeNotice()
        {
            if (--model_.eventDepth_ == 0)
                emit model_.changed();
        }
        ChangeNotice(const ChangeNotice&) = delete;
        ChangeNotice& operator=(const ChangeNotice&) = delete;

    private:
        FormModel& model_;
    };

private:
    int eventDepth_ = 0;
};

} // namespace kestrova
