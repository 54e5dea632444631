#include "samples/solid.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>

namespace samples {
namespace {

constexpr int kDirectionDecimals = 12;

/// An edge together with the sense in which a loop runs along it.
std::string oriented(StepText& text, const std::string& edge, bool forward) {
    return text.add("ORIENTED_EDGE('',*,*," + edge + (forward ? ",.T.)" : ",.F.)"));
}

std::string list(const std::vector<std::string>& references) {
    std::string joined = "(";
    for (const std::string& reference : references) {
        joined += (joined.size() > 1 ? "," : "") + reference;
    }
    return joined + ")";
}

std::string triple(const std::vector<double>& values, int decimals) {
    return "(" + real(values[0], decimals) + "," + real(values[1], decimals) + "," +
           real(values[2], decimals) + ")";
}

std::string addPoint(StepText& text, const std::vector<double>& point) {
    return text.add("CARTESIAN_POINT(''," + triple(point, 9) + ")");
}

std::string addDirection(StepText& text, const std::vector<double>& direction) {
    return text.add("DIRECTION(''," + triple(direction, kDirectionDecimals) + ")");
}

/// The vertex at a corner; for a circle the one where it closes.
std::vector<double> cornerOf(const Contour& contour, std::size_t at, double z) {
    if (contour.corners.empty()) {
        return {contour.centre.x + contour.radius, contour.centre.y, z};
    }
    const Point2& corner = contour.corners[at % contour.corners.size()];
    return {corner.x, corner.y, z};
}

std::string addVertex(StepText& text, const std::vector<double>& point) {
    return text.add("VERTEX_POINT(''," + addPoint(text, point) + ")");
}

std::string addLine(StepText& text, const std::vector<double>& from,
                    const std::vector<double>& to) {
    const std::vector<double> way = {to[0] - from[0], to[1] - from[1], to[2] - from[2]};
    const double length = std::hypot(way[0], way[1], way[2]);
    const std::string direction =
        addDirection(text, {way[0] / length, way[1] / length, way[2] / length});
    const std::string vector = text.add("VECTOR(''," + direction + ",1.)");
    const std::string line = text.add("LINE(''," + addPoint(text, from) + "," + vector + ")");
    const std::string end = addVertex(text, to);
    const std::string start = addVertex(text, from);
    return text.add("EDGE_CURVE(''," + start + "," + end + "," + line + ",.T.)");
}

/// The edges of a contour at a height, counterclockwise from above.
std::vector<std::string> addEdges(StepText& text, const Contour& contour, double z) {
    if (contour.corners.empty()) {
        const std::string place = addPlacement(text, {{contour.centre.x, contour.centre.y, z}});
        const std::string curve = text.add("CIRCLE(''," + place + "," + real(contour.radius) + ")");
        const std::string vertex = addVertex(text, cornerOf(contour, 0, z));
        return {text.add("EDGE_CURVE(''," + vertex + "," + vertex + "," + curve + ",.T.)")};
    }
    std::vector<std::string> edges;
    for (std::size_t at = 0; at < contour.corners.size(); ++at) {
        edges.push_back(addLine(text, cornerOf(contour, at, z), cornerOf(contour, at + 1, z)));
    }
    return edges;
}

/// The loop along all edges of a contour, in their sense or against it.
std::string addLoop(StepText& text, std::vector<std::string> edges, bool forward) {
    if (!forward) {
        std::reverse(edges.begin(), edges.end());
    }
    for (std::string& edge : edges) {
        edge = oriented(text, edge, forward);
    }
    return text.add("EDGE_LOOP(''," + list(edges) + ")");
}

/// The surface of a wall, and whether its own normal points out of the body.
std::string addWallSurface(StepText& text, const Contour& contour, std::size_t at, double z,
                           bool outside) {
    if (contour.corners.empty()) {
        const std::string place = addPlacement(text, {{contour.centre.x, contour.centre.y, z}});
        return text.add("CYLINDRICAL_SURFACE(''," + place + "," + real(contour.radius) + ")") +
               (outside ? ",.T." : ",.F.");
    }
    const std::vector<double> from = cornerOf(contour, at, z);
    const std::vector<double> to = cornerOf(contour, at + 1, z);
    const double length = std::hypot(to[0] - from[0], to[1] - from[1]);
    const std::vector<double> along = {(to[0] - from[0]) / length, (to[1] - from[1]) / length, 0};
    const double sign = outside ? 1 : -1;
    const std::string place =
        addPlacement(text, {from, {sign * along[1], -sign * along[0], 0}, along});
    return text.add("PLANE(''," + place + ")") + ",.T.";
}

/// The walls over a contour; `outside` when the body is inside of it, not around it.
void addWalls(StepText& text, const Contour& contour, double low, double high, bool outside,
              std::vector<std::string>& faces) {
    const std::vector<std::string> bottom = addEdges(text, contour, low);
    const std::vector<std::string> top = addEdges(text, contour, high);
    for (std::size_t at = 0; at < bottom.size(); ++at) {
        const std::string left =
            addLine(text, cornerOf(contour, at, low), cornerOf(contour, at, high));
        const std::string right =
            addLine(text, cornerOf(contour, at + 1, low), cornerOf(contour, at + 1, high));
        const std::vector<std::string> loop = {
            oriented(text, bottom[at], outside), oriented(text, outside ? right : left, true),
            oriented(text, top[at], !outside), oriented(text, outside ? left : right, false)};
        const std::string bound = text.add("FACE_OUTER_BOUND(''," +
                                           text.add("EDGE_LOOP(''," + list(loop) + ")") + ",.T.)");
        faces.push_back(text.add("ADVANCED_FACE('',(" + bound + ")," +
                                 addWallSurface(text, contour, at, low, outside) + ")"));
    }
}

/// A plane face at a height that looks up or down, between an outer contour and inner ones.
void addCap(StepText& text, const Contour& outer, const std::vector<Contour>& inner, double z,
            bool up, std::vector<std::string>& faces) {
    std::vector<std::string> bounds = {
        text.add("FACE_OUTER_BOUND(''," + addLoop(text, addEdges(text, outer, z), up) + ",.T.)")};
    for (const Contour& hole : inner) {
        bounds.push_back(
            text.add("FACE_BOUND(''," + addLoop(text, addEdges(text, hole, z), !up) + ",.T.)"));
    }
    const std::string place = addPlacement(text, {{0, 0, z}, {0, 0, up ? 1.0 : -1.0}});
    const std::string plane = text.add("PLANE(''," + place + ")");
    faces.push_back(text.add("ADVANCED_FACE(''," + list(bounds) + "," + plane + ",.T.)"));
}

double reachOf(const Contour& contour) {
    double reach = contour.radius;
    for (const Point2& corner : contour.corners) {
        reach = std::max(reach, std::hypot(corner.x, corner.y));
    }
    return reach;
}

}  // namespace

Contour circle(double radius, Point2 centre) { return {{}, centre, radius}; }

Contour rectangle(double width, double depth, Point2 centre) {
    const double x = width / 2;
    const double y = depth / 2;
    return {{{centre.x - x, centre.y - y},
             {centre.x + x, centre.y - y},
             {centre.x + x, centre.y + y},
             {centre.x - x, centre.y + y}},
            centre,
            0};
}

Contour hexagon(double acrossFlats) {
    Contour contour;
    const double radius = acrossFlats / std::numbers::sqrt3;
    for (int corner = 0; corner < 6; ++corner) {
        const double angle = corner * std::numbers::pi / 3;
        contour.corners.push_back({radius * std::cos(angle), radius * std::sin(angle)});
    }
    return contour;
}

Contour teeth(int count, double module, double sign) {
    Contour contour;
    const double pitch = module * count / 2;
    const double tip = pitch + sign * 0.95 * module;
    const double root = pitch - sign * 1.2 * module;
    const auto corner = [&contour, count](double radius, double part) {
        const double angle = 2 * std::numbers::pi * part / count;
        contour.corners.push_back({radius * std::cos(angle), radius * std::sin(angle)});
    };
    for (int tooth = 0; tooth < count; ++tooth) {
        corner(root, tooth - 0.32);
        corner(tip, tooth - 0.13);
        corner(tip, tooth + 0.13);
        corner(root, tooth + 0.32);
    }
    return contour;
}

std::string addSolid(StepText& text, const Solid& solid) {
    text.separate();
    std::vector<std::string> faces;
    const std::vector<Layer>& layers = solid.layers;
    addCap(text, layers.front().outline, solid.holes, 0, /*up=*/false, faces);
    double z = 0;
    for (std::size_t at = 0; at < layers.size(); ++at) {
        const double high = z + layers[at].height;
        const Contour& outline = layers[at].outline;
        addWalls(text, outline, z, high, /*outside=*/true, faces);
        for (const Contour& hole : solid.holes) {
            addWalls(text, hole, z, high, /*outside=*/false, faces);
        }
        if (at + 1 == layers.size()) {
            addCap(text, outline, solid.holes, high, /*up=*/true, faces);
        } else {
            const Contour& next = layers[at + 1].outline;
            const bool wider = reachOf(outline) > reachOf(next);
            addCap(text, wider ? outline : next, {wider ? next : outline}, high, wider, faces);
        }
        z = high;
    }
    const std::string shell = text.add("CLOSED_SHELL(''," + list(faces) + ")");
    return text.add("MANIFOLD_SOLID_BREP(''," + shell + ")");
}

std::string addPlacement(StepText& text, const Placement& placement) {
    const std::string x = addDirection(text, placement.x);
    const std::string z = addDirection(text, placement.z);
    const std::string origin = addPoint(text, placement.origin);
    return text.add("AXIS2_PLACEMENT_3D(''," + origin + "," + z + "," + x + ")");
}

}  // namespace samples
