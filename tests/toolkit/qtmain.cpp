#include "toolkit/qt/appearance.h"
#include "toolkit/qt/windowsize.h"

#include <QApplication>
#include <QWidget>

#include <gtest/gtest.h>

namespace {

// What a window's frame adds is known from the first window that was shown. In the game that is the main screen; here
// it must not depend on which test comes first.
void learntheframe()
{
    QWidget first;
    first.show();
    brindor::toolkit::qt::learnframe(first);
}

} // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    brindor::toolkit::qt::dressapplication();
    learntheframe();
    return RUN_ALL_TESTS();
}
