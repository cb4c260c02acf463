#include "orx/regions/outline_index.h"

#include <vector>

#include "orx/foundation/array_templ_impl.h"
#include "orx/regions/internal/strip_index.h"

namespace {

std::vector<COrxVertex const*> segmentsOf(COrxArrayTempl<COrxVertexArray> const& loops) {
    std::vector<COrxVertex const*> segments;
    for (unsigned long l = 0; l < loops.len(); ++l) {
        COrxVertexArray const& loop = loops[static_cast<int>(l)];
        for (int k = 0; k < loop.len(); ++k) {
            segments.push_back(&loop[k]);
        }
    }
    return segments;
}

// The loops in the plan, at height 0: the segments compare points in space (isPoint), and
// the test is planar whatever heights the loops' points and the queries have.
COrxArrayTempl<COrxVertexArray> inPlan(COrxArrayTempl<COrxVertexArray> loops) {
    for (unsigned long l = 0; l < loops.len(); ++l) {
        COrxVertexArray& loop = loops[static_cast<int>(l)];
        for (int k = 0; k < loop.len(); ++k) {
            COrxVertex& v = loop[k];
            COrxPoint3d const& s = v.startPoint();
            COrxPoint3d const& e = v.endPoint();
            v.set(COrxPoint3d(s.x, s.y, 0.0), COrxPoint3d(e.x, e.y, 0.0), v.bulge());
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
    COrxPoint3d const plan(p.x, p.y, 0.0);
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
