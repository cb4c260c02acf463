#include "checks.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

#include "orx/plane_geometry/bulge_segment.h"

namespace {

constexpr double kModerateCoordinate = 1e7;
constexpr double kModerateBulge = 1e3;

}  // namespace

void fuzzCheck(bool ok, char const* what) {
    if (!ok) {
        std::fprintf(stderr, "fuzz check failed: %s\n", what);
        std::fflush(stderr);
        std::abort();
    }
}

bool isFinite(COrxPoint3d const& p) {
    return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z);
}

bool isFinite(COrxVertexArray const& vl) {
    for (int i = 0; i < vl.len(); ++i) {
        COrxVertex const& s = vl.data()[i];
        if (!isFinite(s.startPoint()) || !isFinite(s.endPoint()) || !std::isfinite(s.bulge())) {
            return false;
        }
    }
    return true;
}

bool isFinite(Region const& region) {
    for (unsigned long i = 0; i < region.len(); ++i) {
        if (!isFinite(region[static_cast<int>(i)])) {
            return false;
        }
    }
    return true;
}

namespace {

bool sameValue(double a, double b) {
    return a == b || (std::isnan(a) && std::isnan(b));
}

bool samePoint(COrxPoint3d const& p, COrxPoint3d const& q) {
    return sameValue(p.x, q.x) && sameValue(p.y, q.y) && sameValue(p.z, q.z);
}

}  // namespace

bool isIdentical(COrxVertexArray const& a, COrxVertexArray const& b) {
    if (a.len() != b.len()) {
        return false;
    }
    for (int i = 0; i < a.len(); ++i) {
        COrxVertex const& s = a.data()[i];
        COrxVertex const& t = b.data()[i];
        if (!samePoint(s.startPoint(), t.startPoint()) || !samePoint(s.endPoint(), t.endPoint()) ||
            !sameValue(s.bulge(), t.bulge())) {
            return false;
        }
    }
    return true;
}

bool isClosedLoops(COrxVertexArray const& vl) {
    COrxVertex const* s = vl.data();
    int const n = vl.len();
    int first = 0;
    for (int i = 0; i < n; ++i) {
        bool const runEnds = i + 1 == n || s[i].endPoint() != s[i + 1].startPoint();
        if (runEnds) {
            if (s[i].endPoint() != s[first].startPoint()) {
                return false;
            }
            first = i + 1;
        }
    }
    return true;
}

bool isModerate(COrxPoint3d const& p) {
    return std::fabs(p.x) <= kModerateCoordinate && std::fabs(p.y) <= kModerateCoordinate &&
           std::fabs(p.z) <= kModerateCoordinate;
}

bool isModerate(COrxVertexArray const& vl) {
    for (int i = 0; i < vl.len(); ++i) {
        COrxVertex const& s = vl.data()[i];
        if (!isModerate(s.startPoint()) || !isModerate(s.endPoint()) ||
            !(std::fabs(s.bulge()) <= kModerateBulge)) {
            return false;
        }
    }
    return true;
}

namespace {

bool showing() {
    static bool const show = std::getenv("ORX_FUZZ_SHOW") != nullptr;
    return show;
}

void printVertex(COrxPoint3d const& p, double bulge) {
    std::fprintf(stderr, "  {\"x\": %.17g, \"y\": %.17g, \"bulge\": %.17g}", p.x, p.y, bulge);
}

// A run that ends exactly where it starts is written closed, without repeating its first
// point; any other run open, with its last point: both read back as the same segments.
void printRun(COrxVertex const* s, int first, int last) {
    COrxPoint3d const& start = s[first].startPoint();
    COrxPoint3d const& end = s[last].endPoint();
    bool const closed = end.x == start.x && end.y == start.y;
    std::fprintf(stderr, "{\"closed\": %s, \"elevation\": %.17g, \"vertices\": [\n",
                 closed ? "true" : "false", start.z);
    for (int i = first; i <= last; ++i) {
        printVertex(s[i].startPoint(), s[i].bulge());
        std::fprintf(stderr, i < last || !closed ? ",\n" : "");
    }
    if (!closed) {
        printVertex(end, 0.0);
    }
    std::fprintf(stderr, "]}");
}

}  // namespace

void showOperand(char const* name, COrxVertexArray const& vl) {
    if (!showing()) {
        return;
    }
    std::fprintf(stderr, "%s (%d segments):\n[", name, vl.len());
    COrxVertex const* s = vl.data();
    int first = 0;
    for (int i = 0; i < vl.len(); ++i) {
        if (i + 1 == vl.len() || s[i].endPoint() != s[i + 1].startPoint()) {
            std::fprintf(stderr, first == 0 ? "" : ",\n");
            printRun(s, first, i);
            first = i + 1;
        }
    }
    std::fprintf(stderr, "]\n");
}

void showOperand(char const* name, Region const& region) {
    for (int i = 0; i < static_cast<int>(region.len()); ++i) {
        showOperand(i == 0 ? name : "  hole", region[i]);
    }
}

void showPoint(char const* name, COrxPoint3d const& p) {
    if (showing()) {
        std::fprintf(stderr, "%s: (%.17g, %.17g, %.17g)\n", name, p.x, p.y, p.z);
    }
}

double distanceTo(COrxVertexArray const& vl, COrxPoint3d const& p) {
    double nearest = std::numeric_limits<double>::infinity();
    for (int i = 0; i < vl.len(); ++i) {
        COrxVertex const& s = vl.data()[i];
        double const d = ORX::g_bulg_pt_dist(s.startPoint(), s.endPoint(), s.bulge(), p);
        if (d < nearest) {
            nearest = d;
        }
    }
    return nearest;
}
