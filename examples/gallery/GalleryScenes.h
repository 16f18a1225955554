#pragma once

class DrawArea;

// Pictures of the gallery that other programs draw as well (benchmarks, the
// test that compares the outputs).  The caller destroys the canvas.

// The free drawing: shapes, a gradient, lines and a dash.
DrawArea *drawCanvasScene();
// The text page: mark-up, blocks, wrapping, rotation, symbols in line.
DrawArea *drawTextPage();
