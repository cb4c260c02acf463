#include "orx/regions/outline_index.h"

#include <cmath>
#include <vector>

#include "orx/foundation/array_templ_impl.h"
#include "orx/foundation/shared/index_range.h"
#include "orx/regions/internal/strip_index.h"

namespace {

ORX::internal::SegmentRefs segmentsOf(COrxArrayTempl<COrxVertexArray> const& loops) {
    ORX::internal::SegmentRefs segments;
    for (int l : ORX::internal::indices(loops)) {
        COrxVertexArray const& loop = loops[l];
        for (int k = 0; k < loop.len(); ++k) {
            segments.push_back(&loop[k]);
        }
    }
    return segments;
}

// Coordinates smaller than this count as 0: the exact winding tests multiply differences
// of coordinates, and products that fall below the normal doubles lose their exactness.
constexpr double kNegligibleCoordinate = 1e-50;

// The point in the plan, at height 0, with negligible coordinates made 0.
COrxPoint3d inPlan(COrxPoint3d const& p) {
    auto const plan = [](double v) { return std::fabs(v) < kNegligibleCoordinate ? 0.0 : v; };
    return COrxPoint3d(plan(p.x), plan(p.y), 0.0);
}

// The loops in the plan: the segments compare points in space (isPoint), and the test is
// planar whatever heights the loops' points and the queries have.
COrxArrayTempl<COrxVertexArray> inPlan(COrxArrayTempl<COrxVertexArray> loops) {
    for (unsigned long l = 0; l < loops.len(); ++l) {
        COrxVertexArray& loop = loops[static_cast<int>(l)];
        for (int k = 0; k < loop.len(); ++k) {
            COrxVertex& v = loop[k];
            v.set(inPlan(v.startPoint()), inPlan(v.endPoint()), v.bulge());
        }
    }
    return loops;
}

COrxArrayTempl<COrxVertexArray> oneLoop(COrxVertexArray const& outline) {
    COrxArrayTempl<COrxVertexArray> loops;
    loops.append(outline);
    return loops;
}

}  // namespace

// The loops are kept here in the plan, and the strips point into them.
struct COrxOutlineIndex::Index {
    explicit Index(COrxArrayTempl<COrxVertexArray> const& region)
        : loops(inPlan(region)), strips(segmentsOf(loops)) {}

    COrxArrayTempl<COrxVertexArray> const loops;
    ORX::internal::StripIndex const strips;
};

COrxOutlineIndex::COrxOutlineIndex() : m_index(nullptr) {}

COrxOutlineIndex::COrxOutlineIndex(COrxVertexArray const& outline)
    : m_index(new Index(oneLoop(outline))) {}

COrxOutlineIndex::COrxOutlineIndex(COrxArrayTempl<COrxVertexArray> const& region)
    : m_index(new Index(region)) {}

COrxOutlineIndex::COrxOutlineIndex(COrxOutlineIndex const& other)
    : COrxObj(other),
      m_index(other.m_index != nullptr ? new Index(other.m_index->loops) : nullptr) {}

COrxOutlineIndex& COrxOutlineIndex::operator=(COrxOutlineIndex const& other) {
    if (this != &other) {
        Index* const copy = other.m_index != nullptr ? new Index(other.m_index->loops) : nullptr;
        delete m_index;
        m_index = copy;
    }
    return *this;
}

COrxOutlineIndex::~COrxOutlineIndex() {
    delete m_index;
}

int COrxOutlineIndex::locate(COrxPoint3d const& p) const {
    COrxPoint3d const plan = inPlan(p);
    if (m_index == nullptr || !plan.isValid()) {
        return -1;
    }
    if (m_index->strips.onBoundary(plan)) {
        return 0;
    }
    return m_index->strips.winding(plan) % 2 != 0 ? 1 : -1;
}

bool COrxOutlineIndex::inside(COrxPoint3d const& p, bool onBoundary) const {
    int const where = locate(p);
    return where == 0 ? onBoundary : where > 0;
}
