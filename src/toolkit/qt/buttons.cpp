#include "toolkit/qt/appearance.h"
#include "toolkit/qt/flatbutton.h"
#include "toolkit/qt/qttext.h"
#include "toolkit/qt/view.h"
#include "toolkit/user.h"

#include <QKeySequence>

namespace brindor::toolkit::qt {

namespace {

class ButtonView : public View {
public:
    ButtonView(ScreenWindow& window, Button& button, FlatButton* widget)
        : View(window, button, widget), button_(button), widget_(*widget)
    {
        // Neither an access key nor Return brings the focus by itself.
        connect(widget, &QPushButton::clicked, this, [this] {
            widget_.setFocus(Qt::OtherFocusReason);
            userclick(button_);
        });
    }
    bool wraps() const override { return true; }
    int heightfor(int width) override { return widget_.heightneeded(width); }

protected:
    void bringkind() override { widget_.bring(); }

private:
    Button& button_;
    FlatButton& widget_;
};

} // namespace

View* makebutton(ScreenWindow& window, Button& button, QWidget* parent)
{
    return new ButtonView(window, button, new FlatButton(button, parent));
}

} // namespace brindor::toolkit::qt
