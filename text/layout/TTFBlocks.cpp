#include "text/layout/TTFBlocks.h"

#include <algorithm>
#include <cmath>

#include "draw/canvas/DrawArea.h"
#include "foundation/ArrayViews.h"
#include "text/font/FontLock.h"
#include "text/layout/TextTransform.h"

TTFBlocks::TTFBlocks(DrawArea *d, const BlockAttributes &a, bool root)
    : canvas(d),
      isRoot(root),
      attrs(a),
      boxWidth(0),
      boxHeight(0),
      boundsWidth(0),
      boundsHeight(0),
      boundsLeft(0),
      boundsTop(0) {}

TTFBlocks::~TTFBlocks() {
    for (Entry &e : children)
        if (e.child) e.child->releaseText();
}

void TTFBlocks::destroy() {
    if (!isRoot) {
        releaseText();
        return;
    }
    // Glyph references go back to the faces under the font mutex.
    FontLock lock;
    releaseText();
}

void TTFBlocks::addChild(TTFText *child) {
    children.push_back({child, false, 0, 0, 0});
}

void TTFBlocks::addBreak() {
    children.push_back({nullptr, true, 0, 0, 0});
}

std::vector<TTFText *> TTFBlocks::getLineItems(int line) const {
    std::vector<TTFText *> items;
    for (const Entry &e : wrapped)
        if (e.line == line) items.push_back(e.child);
    return items;
}

std::vector<double> TTFBlocks::getLineItemLefts(int line) const {
    std::vector<double> lefts;
    for (const Entry &e : wrapped)
        if (e.line == line) lefts.push_back(e.x);
    return lefts;
}

int TTFBlocks::getBaseline() {
    return attrs.margin[2] + (lines.empty() ? 0 : lines[0].ascent);
}

int TTFBlocks::getLineHeight() {
    return wrapped.empty() ? 0 : wrapped[0].child->getLineHeight();
}

int TTFBlocks::getLineDistance() {
    return wrapped.empty() ? 0 : wrapped[0].child->getLineDistance();
}

int TTFBlocks::getAscent() {
    return attrs.angle == 0 ? getBaseline() : boundsHeight;
}

int TTFBlocks::getDescent() {
    return attrs.angle == 0 ? boxHeight - getBaseline() : 0;
}

bool TTFBlocks::wrapChildren(int limit, int lineLimit) {
    wrapped.clear();
    bool fits = true;
    int line = 0;
    int x = 0;
    bool firstOnLine = true;
    for (const Entry &e : children) {
        if (e.isBreak) {
            if (line + 1 >= lineLimit) return false;
            ++line, x = 0, firstOnLine = true;
            continue;
        }
        TTFText *item = e.child;
        while (item) {
            bool ok = item->layout(x, limit, lineLimit - line);
            if (!firstOnLine && (double)x + item->getWidth() > limit && line + 1 < lineLimit) {
                // Not the first on its line: it starts the next one instead.
                ++line, x = 0, firstOnLine = true;
                continue;
            }
            wrapped.push_back({item, false, line, 0, 0});
            x += item->getWidth();
            firstOnLine = false;
            fits = fits && ok;
            item = item->nextLine();
            if (item) {
                if (line + 1 >= lineLimit) return false;
                ++line, x = 0, firstOnLine = true;
            }
        }
    }
    return fits;
}

void TTFBlocks::measureLines() {
    int count = wrapped.empty() ? 0 : wrapped.back().line + 1;
    lines.assign(count, LineBox{0, 0, 0, 0, 0});
    std::vector<int> distance(count, 0), tallest(count, 0);
    for (const Entry &e : wrapped) {
        LineBox &l = lines[e.line];
        TTFText *c = e.child;
        if (c->getVAlign() == BlockAttributes::kBaseline) {
            l.ascent = std::max(l.ascent, c->getAscent());
            l.descent = std::max(l.descent, c->getDescent());
        } else {
            tallest[e.line] = std::max(tallest[e.line], c->getHeight());
        }
        distance[e.line] = std::max(distance[e.line], c->getLineDistance());
        l.width += c->getWidth();
    }
    int top = 0;
    for (int i = 0; i < count; ++i) {
        LineBox &l = lines[i];
        int spaced = (int)std::floor(distance[i] * attrs.lineSpacing + 0.5);
        l.height = std::max(std::max(l.ascent + l.descent, spaced), tallest[i]);
        l.top = top;
        top += l.height;
    }
}

void TTFBlocks::placeItems() {
    int innerWidth = boxWidth - attrs.margin[0] - attrs.margin[1];
    std::vector<double> x(lines.size(), 0);
    for (size_t i = 0; i < lines.size(); ++i) {
        int spare = innerWidth - lines[i].width;
        if (attrs.halign == BlockAttributes::kRight)
            x[i] = spare;
        else if (attrs.halign == BlockAttributes::kMiddle ||
                 attrs.halign == BlockAttributes::kAbsMiddle)
            x[i] = spare / 2;
    }
    for (Entry &e : wrapped) {
        const LineBox &l = lines[e.line];
        TTFText *c = e.child;
        int h = c->getHeight();
        double top;
        switch (c->getVAlign()) {
            case BlockAttributes::kTop:
                top = l.top;
                break;
            case BlockAttributes::kBottom:
                top = l.top + l.height - h;
                break;
            case BlockAttributes::kMiddle:
                top = l.top + (l.height - h) / 2;
                break;
            case BlockAttributes::kAbsMiddle:
                top = l.top + (l.ascent + l.descent - h) / 2;
                break;
            default:
                top = l.top + l.ascent - c->getAscent();
                break;
        }
        e.x = attrs.margin[0] + x[e.line];
        e.top = attrs.margin[2] + top;
        x[e.line] += c->getWidth();
    }
}

void TTFBlocks::computeBounds() {
    TextTransform r = TextTransform().rotated(attrs.angle);
    double minX = 1e300, minY = 1e300, maxX = -1e300, maxY = -1e300;
    for (int k = 0; k < 4; ++k) {
        double px, py;
        r.map(k & 1 ? boxWidth : 0, k & 2 ? boxHeight : 0, &px, &py);
        minX = std::min(minX, px), maxX = std::max(maxX, px);
        minY = std::min(minY, py), maxY = std::max(maxY, py);
    }
    boundsLeft = minX;
    boundsTop = minY;
    boundsWidth = (int)std::floor(maxX - minX + 0.5);
    boundsHeight = (int)std::floor(maxY - minY + 0.5);
}

bool TTFBlocks::layout(int, int, int) {
    int wrap = attrs.getWrapWidth();
    int limit = wrap > 0 ? std::max(1, wrap - attrs.margin[0] - attrs.margin[1]) : kUnlimited;
    int lineLimit = attrs.truncate > 0 ? attrs.truncate : kUnlimited;
    bool fits = wrapChildren(limit, lineLimit);
    measureLines();
    int contentWidth = 0;
    for (const LineBox &l : lines) contentWidth = std::max(contentWidth, l.width);
    int contentHeight = lines.empty() ? 0 : lines.back().top + lines.back().height;
    boxWidth = attrs.width > 0 ? attrs.width : contentWidth + attrs.margin[0] + attrs.margin[1];
    boxHeight = attrs.height > 0 ? attrs.height : contentHeight + attrs.margin[2] + attrs.margin[3];
    placeItems();
    computeBounds();
    return fits;
}

void TTFBlocks::draw(int x, int y, int color, int alignment) {
    double offX, offY;
    if (alignment >= 10 && alignment <= 13) {
        // Baseline alignments: the left or right end of the first baseline.
        TextTransform r = TextTransform().rotated(attrs.angle);
        bool right = alignment == 11 || alignment == 13;
        r.map(right ? boxWidth : 0, getBaseline(), &offX, &offY);
        offX -= boundsLeft;
        offY -= boundsTop;
    } else {
        offX = DrawArea::alignX(boundsWidth, alignment);
        offY = DrawArea::alignY(boundsHeight, alignment);
    }
    drawAt(TextTransform(), x - offX, y - offY, color);
}

void TTFBlocks::drawBox(const TextTransform &frame) {
    if (!attrs.hasBox()) return;
    double x2 = boxWidth - 1, y2 = boxHeight - 1;
    if (!frame.isRotated()) {
        double ox, oy;
        frame.map(0, 0, &ox, &oy);
        ox = std::floor(ox + 0.5), oy = std::floor(oy + 0.5);
        const int *r = attrs.roundedCorners;
        if (r[0] || r[1] || r[2] || r[3]) {
            int edges[4] = {attrs.edgeColor, attrs.edgeColor, attrs.edgeColor, attrs.edgeColor};
            canvas->roundedRect(ox, oy, ox + x2, oy + y2, r, edges, attrs.bgColor);
        } else {
            canvas->rect(ox, oy, ox + x2, oy + y2, attrs.edgeColor, attrs.bgColor,
                         attrs.raisedEffect);
        }
        return;
    }
    double xs[4], ys[4];
    frame.map(0, 0, &xs[0], &ys[0]);
    frame.map(x2, 0, &xs[1], &ys[1]);
    frame.map(x2, y2, &xs[2], &ys[2]);
    frame.map(0, y2, &xs[3], &ys[3]);
    canvas->polygon(DoubleArray(xs, 4), DoubleArray(ys, 4), attrs.edgeColor, attrs.bgColor);
}

void TTFBlocks::drawAt(const TextTransform &t, double left, double top, int color) {
    if (!canvas) return;
    TextTransform frame = t.translated(left - boundsLeft, top - boundsTop).rotated(attrs.angle);
    drawBox(frame);
    for (const Entry &e : wrapped) e.child->drawAt(frame, e.x, e.top, color);
}
