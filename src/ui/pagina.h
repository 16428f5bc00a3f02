#pragma once

class QImage;
class QPrinter;

namespace bosquel {

struct Papel;

/// Gives the printer the paper of a page, and the whole of it to draw on.
void prepararPagina(QPrinter& impresora, const Papel& papel);

/// Draws the page: the one routine behind preview, paper and file. The picture stands in its natural size at
/// the top left corner of its box, and is cut off at the box. Where it is looked at with a `densidad` of less
/// than one pixel to one of its own, its strokes grow paler, so that none of them gets lost.
void pintarPagina(QPrinter& impresora, const Papel& papel, const QImage& imagen, double densidad = 1);

}  // namespace bosquel
