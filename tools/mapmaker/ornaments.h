#pragma once

#include <QColor>
#include <QPainter>
#include <QPointF>
#include <QRectF>

// What old maps are adorned with, drawn with the pen in simple strokes. Sizes are in pixels.
namespace brindor::mapmaker {

extern const QColor sepia;   // the ink
extern const QColor vellum;  // the lightest paper
extern const QColor carmine; // the red of borders and flags
extern const QColor ochre;
extern const QColor verdigris;

QPen inkpen(double thickness);

void drawcompassrose(QPainter& painter, const QPointF& middle, double radius);
void drawsun(QPainter& painter, const QPointF& middle, double radius);
void drawmoon(QPainter& painter, const QPointF& middle, double radius);

// A three-master under sail and a serpent among waves, each some `size` wide.
void drawship(QPainter& painter, const QPointF& middle, double size);
void drawserpent(QPainter& painter, const QPointF& middle, double size);

// A panel with curled ends for a title.
void drawcartouche(QPainter& painter, const QRectF& box);

// A ladder of light and dark pieces between two lines, as round the edge of a chart.
void drawneatline(QPainter& painter, const QRectF& outer, double width, double piece);

} // namespace brindor::mapmaker
