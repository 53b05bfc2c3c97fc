#pragma once

#include "coastlines/coastlines.h"

#include <QColor>
#include <QImage>
#include <QString>
#include <vector>

namespace brindor::mapmaker {

// The colours of the maps that must come through whole.
std::vector<QColor> mapcolours();

// Draws the maps that show where an event happened.
class LocatorMaps {
public:
    explicit LocatorMaps(Coastlines coastlines);

    // A region of some 60 degrees around a place, 640 x 480 pixels, with a marker, the place's name and a small map of
    // the world in the corner.
    QImage draw(const Position& place, const QString& name) const;

private:
    Coastlines coastlines_;
    QImage world_;
};

} // namespace brindor::mapmaker
