#include "toolkit/qt/controlview.h"
#include "toolkit/qt/flatbutton.h"
#include "toolkit/user.h"

namespace brindor::toolkit::qt {

namespace {

class ButtonWidget : public FlatButton {
public:
    ButtonWidget(Button& button, QWidget* parent) : FlatButton(button, parent)
    {
        // Neither an access key nor Return brings the focus by itself.
        connect(this, &QPushButton::clicked, this, [this] {
            setFocus(Qt::OtherFocusReason);
            userclick(record());
        });
    }
};

} // namespace

ControlView* makebutton(Button& button, QWidget* parent)
{
    return new ViewOf<ButtonWidget>(button, parent);
}

} // namespace brindor::toolkit::qt
