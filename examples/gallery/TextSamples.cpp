// Text layout: inline mark-up, blocks, wrapping with truncation, rotation and
// right-to-left scripts, drawn with the built-in stand-in fonts.
#include "draw/canvas/DrawArea.h"
#include "examples/gallery/Gallery.h"
#include "examples/gallery/GalleryScenes.h"
#include "text/CanvasText.h"

DrawArea *drawTextPage() {
    CanvasText::install();
    DrawArea *d = DrawArea::create();
    d->setSize(420, 300, 0xffffff);
    d->text4(
        "<*size=16*>Inline <*color=C0392B*>colour<*/font*>, "
        "<*font=timesbi.ttf*>Times bold italic<*/font*>, "
        "<*underline=1*>underlined<*/font*>",
        "arial.ttf", 0, 11, 0, 0, false, 10, 10, 0x000000, 7);
    d->text4("H<*font,sub*>2<*/font*>O and x<*font,super*>2<*/font*>", "arial.ttf", 0, 14, 0, 0,
             false, 10, 45, 0x1f3a5f, 7);
    d->text4(
        "<*block,halign=center,width=150,bgcolor=FFF3C4,edgecolor=C9A227,"
        "margin=6,roundedcorners=6*>A centred block<*br*>with two lines<*/block*>",
        "arial.ttf", 0, 10, 0, 0, false, 10, 80, 0x000000, 7);
    d->textBlock("Long text wraps at the width and is cut with dots when it runs out of lines",
                 "arial.ttf", 0, 10, 0, 0, 190, 80, 120, 3, 0x333333, 7);
    d->text4("Rotated 90", "arial.ttf", 0, 12, 0, 90, false, 400, 290, 0x4a90d9, 3);
    d->text4("Slanted 30 degrees", "arial.ttf", 0, 12, 0, 30, false, 230, 230, 0x76b041, 5);
    d->text4(
        "Symbols inline: <*img=@circle,width=10,color=E4572E*> and "
        "<*img=@star(5),size=12,color=FFC914*>",
        "arial.ttf", 0, 12, 0, 0, false, 10, 160, 0x000000, 7);
    return d;
}

static bool textMarkup(const std::string &path) {
    DrawArea *d = drawTextPage();
    bool ok = d->out(path.c_str());
    d->destroy();
    return ok;
}

VISTREL_GALLERY_SAMPLE("Text", "Inline mark-up, blocks, wrapping and rotation", "text_markup.png",
                       textMarkup);

// A letter far larger than its canvas, and a long text wrapped in a narrow
// column and cut after twelve lines: neither keeps memory once drawn.
static bool textLarge(const std::string &path) {
    CanvasText::install();
    DrawArea *d = DrawArea::create();
    d->setSize(420, 300, 0xffffff);
    d->text4("g", "arial.ttf", 0, 1200, 0, 0, false, -150, -520, 0xd9e6f5, 7);
    std::string text;
    while (text.size() < 200000) text += "Quarterly revenue by region and product line. ";
    d->textBlock(text.c_str(), "times.ttf", 0, 10, 0, 0, 250, 20, 150, 12, 0x1f3a5f, 7);
    d->text4("1200 pt", "arial.ttf", 0, 12, 0, 0, false, 20, 270, 0x666666, 7);
    bool ok = d->out(path.c_str());
    d->destroy();
    return ok;
}

VISTREL_GALLERY_SAMPLE("Text",
                       "A 1200-point letter on a small canvas, and 200,000 characters wrapped in "
                       "a column and cut after twelve lines",
                       "text_large.png", textLarge);
