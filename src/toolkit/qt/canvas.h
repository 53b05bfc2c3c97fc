#pragma once

#include "toolkit/controls.h"
#include "toolkit/qt/pictures.h"

#include <QWidget>

namespace brindor::toolkit::qt {

// The ground on which a screen's controls lie: its colour, and its picture in the middle of it.
class Canvas : public QWidget {
public:
    explicit Canvas(const Screen& screen);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Screen& screen_;
    StretchedPicture backdrop_;
};

} // namespace brindor::toolkit::qt
