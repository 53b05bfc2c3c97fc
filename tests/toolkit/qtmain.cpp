#include "toolkit/qt/appearance.h"
#include "toolkit/qt/windowsize.h"

#include <QApplication>
#include <QWidget>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    qputenv("QT_LOGGING_RULES", "qt.qpa.*=false");
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    QApplication::setCursorFlashTime(0); // two pictures of a screen are the same
    brindor::toolkit::qt::dressapplication();
    // What a window's frame adds is known from the first window that was shown. In the game that is the main screen;
    // here it must not depend on which test comes first.
    QWidget first;
    first.show();
    brindor::toolkit::qt::learnframe(first);
    first.hide();
    return RUN_ALL_TESTS();
}
