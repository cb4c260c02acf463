// Every public geometry function fed the values that break formulas: NaN, infinities, 1e300
// and 1e-300 of either sign, and polylines that are empty, of one segment, with zero-length
// segments, repeated points and extreme bulges. Each call must return within a second, never
// crash or raise a sanitizer report, and from input without infinities give a documented
// value: a finite number or NaN for a double (an overflow is no answer, and the library gives
// NaN for it), points and polylines without infinities. An infinity given in may come out of
// a function that only moves values, as a NaN does.
#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <functional>
#include <limits>
#include <sstream>
#include <string>
#include <vector>

#include "orx/orx.h"
#include "shapes.h"

using namespace orx_test;

namespace {

double const kInf = std::numeric_limits<double>::infinity();
double const kValues[] = {ORX::nan(), kInf, -kInf, 1e300, -1e300, 1e-300, -1e-300, 0.0, 1.0};

bool noInfinity(double v) {
    return !std::isinf(v);
}
bool noInfinity(COrxPoint3d const& p) {
    return noInfinity(p.x) && noInfinity(p.y) && noInfinity(p.z);
}
bool noInfinity(COrxVertex const& v) {
    return noInfinity(v.startPoint()) && noInfinity(v.endPoint()) && noInfinity(v.bulge());
}
bool noInfinity(COrxVertexArray const& a);
bool noInfinity(Region const& r);
template <class List>
bool noInfinityIn(List const& list) {
    for (long k = 0; k < static_cast<long>(list.len()); ++k) {
        if (!noInfinity(list[static_cast<int>(k)])) {
            return false;
        }
    }
    return true;
}
bool noInfinity(COrxPoint3dArray const& a) {
    return noInfinityIn(a);
}
bool noInfinity(COrxVertexArray const& a) {
    return noInfinityIn(a);
}
bool noInfinity(Region const& r) {
    return noInfinityIn(r);
}
bool noInfinity(RegionList const& r) {
    return noInfinityIn(r);
}
bool noInfinity(bool) {
    return true;
}
bool noInfinity(int) {
    return true;
}

// Runs the calls and collects the ones that took too long or gave an infinity.
class Sweep {
public:
    // Sets whether the calls that follow have an infinity among their input.
    void infiniteInput(bool infinite) { m_infiniteInput = infinite; }

    template <class Call>
    void check(std::string const& what, Call call) {
        auto const start = std::chrono::steady_clock::now();
        auto const result = call();
        double const seconds =
            std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        ++m_calls;
        if (seconds > 1.0 || (!m_infiniteInput && !noInfinity(result))) {
            std::ostringstream text;
            text << what << (seconds > 1.0 ? " took too long" : " gave an infinity");
            m_failures.push_back(text.str());
        }
    }

    void report() const {
        EXPECT_GT(m_calls, 0);
        for (std::size_t k = 0; k < m_failures.size() && k < 30; ++k) {
            ADD_FAILURE() << m_failures[k];
        }
        EXPECT_TRUE(m_failures.empty()) << m_failures.size() << " of " << m_calls << " calls";
    }

private:
    int m_calls = 0;
    bool m_infiniteInput = false;
    std::vector<std::string> m_failures;
};

std::string name(double v) {
    std::ostringstream text;
    text << v;
    return text.str();
}

std::string name(COrxPoint3d const& p) {
    return "(" + name(p.x) + "," + name(p.y) + ")";
}

std::vector<COrxPoint3d> points() {
    std::vector<COrxPoint3d> list{pt(0, 0), pt(1, 0), pt(0, 1), pt(2, 2)};
    for (double v : kValues) {
        list.push_back(pt(v, 0.5));
        list.push_back(pt(0.5, v));
    }
    return list;
}

struct NamedPolyline {
    std::string name;
    COrxVertexArray vl;
};

std::vector<NamedPolyline> polylines() {
    COrxVertexArray repeated = polygon({pt(0, 0), pt(0, 0), pt(1, 0), pt(1, 0), pt(1, 1)});
    COrxVertexArray zeroLength = rectangle(0, 0, 1, 1);
    zeroLength.insertAt(2, COrxVertex(pt(1, 1), pt(1, 1), 0.0));
    COrxVertexArray arcs = circle(pt(0, 0), 1);
    std::vector<NamedPolyline> list{
        {"empty", COrxVertexArray()},
        {"one segment", COrxVertexArray(COrxVertex(pt(0, 0), pt(1, 0), 0.3))},
        {"repeated points", repeated},
        {"zero-length segment", zeroLength},
        {"square", rectangle(0, 0, 1, 1)},
        {"circle", arcs},
        {"huge", rectangle(-1e300, -1e300, 1e300, 1e300)},
        {"tiny", rectangle(0, 0, 1e-300, 1e-300)},
        {"huge circle", circle(pt(1e300, 0), 1e300)},
    };
    for (double v : {ORX::nan(), kInf, 1e300, 1e-300, -1e300}) {
        COrxVertexArray bulged = arcs;
        bulged[0].set(bulged[0].startPoint(), bulged[0].endPoint(), v);
        list.push_back({"bulge " + name(v), bulged});
        COrxVertexArray moved = rectangle(0, 0, 1, 1);
        moved[1].set(moved[1].startPoint(), pt(1, v), 0.0);
        moved[2].set(pt(1, v), moved[2].endPoint(), 0.0);
        list.push_back({"corner " + name(v), moved});
    }
    return list;
}

}  // namespace

TEST(ExtremeInputTest, PlaneGeometryFunctions) {
    Sweep sweep;
    for (double a : kValues) {
        for (double b : kValues) {
            std::string const ab = name(a) + "," + name(b);
            sweep.infiniteInput(std::isinf(a) || std::isinf(b));
            sweep.check("g_ang " + ab, [&] { return ORX::g_ang(a) + ORX::g_signed_ang(b); });
            sweep.check("g_dir_nrm " + ab, [&] { return ORX::g_dir_nrm(a) + ORX::g_qw(b); });
            sweep.check("g_rnd_quad " + ab, [&] { return ORX::g_rnd_quad(a); });
            sweep.check("g_dw " + ab, [&] { return ORX::g_dw(a, b); });
            sweep.check("g_dw1 " + ab, [&] { return ORX::g_dw1(a, b); });
            sweep.check("g_w_halb " + ab, [&] { return ORX::g_w_halb(a, b); });
            sweep.check("g_w_mid " + ab, [&] { return ORX::g_w_mid(a, b); });
            sweep.check("g_arc_bulg " + ab, [&] { return ORX::g_arc_bulg(a, b); });
            sweep.check("g_sec_ang " + ab, [&] { return ORX::g_sec_ang(a, b); });
            sweep.check("g_sec_len " + ab, [&] { return ORX::g_sec_len(a, b); });
            sweep.check("g_sec_len2 " + ab, [&] { return ORX::g_sec_len2(a, b); });
            sweep.check("g_tang_radius " + ab, [&] { return ORX::g_tang_radius(a, b); });
            sweep.check("g_korb_3m " + ab, [&] { return ORX::g_korb_3m(a, b); });
            sweep.check("g_elps " + ab, [&] { return ORX::g_elps_p(a, b, 0.3) + ORX::g_elps_w(1, a, b); });
            for (double c : {kValues[0], kValues[3], kValues[5], 1.0}) {  // finite or NaN
                std::string const abc = ab + "," + name(c);
                sweep.check("g_w_3eck " + abc, [&] { return ORX::g_w_3eck(a, b, c); });
                sweep.check("g_rkorb " + abc, [&] { return ORX::g_rkorb(a, b, c) + ORX::g_rkorb2(a, b, c); });
                sweep.check("g_fries " + abc, [&] { return ORX::g_fries_w(a, b, c) + ORX::g_fries_r(a, b, c); });
                sweep.check("g_tang_cen " + abc, [&] { return ORX::g_tang_cen(a, b, c, 1); });
                sweep.check("g_achs_dist " + abc, [&] { return ORX::g_achs_dist(a, b, c, 1, 1); });
            }
        }
    }
    std::vector<COrxPoint3d> const ps = points();
    for (COrxPoint3d const& p : ps) {
        for (COrxPoint3d const& q : ps) {
            std::string const pq = name(p) + name(q);
            for (double b : kValues) {
                std::string const pqb = pq + " b " + name(b);
                sweep.infiniteInput(!noInfinity(p) || !noInfinity(q) || std::isinf(b));
                sweep.check("g_bulg_cen " + pqb, [&] { return ORX::g_bulg_cen(p, q, b); });
                sweep.check("g_bulg_mid " + pqb, [&] { return ORX::g_bulg_mid(p, q, b); });
                sweep.check("g_bulg_len " + pqb, [&] { return ORX::g_bulg_len(p, q, b); });
                sweep.check("g_bulg_rad " + pqb, [&] { return ORX::g_bulg_rad(p, q, b); });
                sweep.check("g_bulg_area " + pqb, [&] { return ORX::g_bulg_area(p, q, b); });
                sweep.check("g_bulg_pt_at " + pqb, [&] { return ORX::g_bulg_pt_at(p, q, b, 0.5); });
                sweep.check("g_bulg_lotp " + pqb, [&] { return ORX::g_bulg_lotp(p, q, b, ps[3]); });
                sweep.check("g_bulg_dist " + pqb, [&] {
                    return ORX::g_bulg_dist_at(p, q, b, ps[2]) + ORX::g_bulg_pt_dist(p, q, b, ps[2]) +
                           ORX::g_bulg_circ_dist(p, q, b, ps[2]);
                });
                sweep.check("g_bulg_to " + pqb, [&] { return ORX::g_bulg_to(p, q, b, ps[3]) + ORX::g_bulg_from(p, q, b, ps[3]); });
                sweep.check("g_bulg_winding " + pqb, [&] { return ORX::g_bulg_winding(p, q, b, ps[3]); });
                sweep.check("g_bulg_cut " + pqb, [&] {
                    COrxPoint3d cut;
                    double b1 = 0, b2 = 0;
                    ORX::g_bulg_cut(p, q, b, ps[3], cut, b1, b2);
                    return cut;
                });
                sweep.check("g_arcrad_bulg " + pqb, [&] { return ORX::g_arcrad_bulg(p, q, b); });
                sweep.check("g_dist_w " + pqb, [&] { return ORX::g_dist_w(p, q, b) + ORX::g_dist_w1(p, q, b); });
                sweep.check("g_arc_mid " + pqb, [&] { return ORX::g_arc_mid(p, b, 0.1, 1.0); });
                sweep.check("g_arc_pt " + pqb, [&] { return ORX::g_arc_pt(p, b, 0.1, 1.0, q); });
            }
            for (COrxPoint3d const& r : {ps[0], ps[3], ps[6], ps[9]}) {
                std::string const pqr = pq + name(r);
                sweep.infiniteInput(!noInfinity(p) || !noInfinity(q) || !noInfinity(r));
                COrxPoint3d out;
                double bulge = 0;
                sweep.check("g_arc3p " + pqr, [&] {
                    ORX::g_arc3p_bulg(p, q, r, bulge);
                    ORX::g_arc3p_cen(p, q, r, out);
                    ORX::g_arc3p_tan(p, q, r, out);
                    return out;
                });
                sweep.check("g_bulg_len3 " + pqr, [&] { return ORX::g_bulg_len(p, q, r); });
                sweep.check("g_lotp " + pqr, [&] { return ORX::g_lotp(p, q, r); });
                sweep.check("g_lot " + pqr, [&] { return ORX::g_lot(p, q, r); });
                sweep.check("g_aabs " + pqr, [&] { return ORX::g_aabs(p, q, r); });
                sweep.check("g_delta_w " + pqr, [&] {
                    return ORX::g_delta_w(p, q, r) + ORX::g_delta_w1(p, q, r) + ORX::g_delta_w2(p, q, r);
                });
                sweep.check("inters " + pqr, [&] {
                    ORX::inters(p, q, r, ps[1], false, out);
                    ORX::inters(p, q, r, ps[1], true, out);
                    return out;
                });
                sweep.check("g_tang_ang " + pqr, [&] { return ORX::g_tang_ang(p, 1, q, 2); });
            }
            for (double r : {1.0, 1e300, 1e-300, ORX::nan()}) {
                std::string const pqr = pq + " r " + name(r);
                sweep.infiniteInput(!noInfinity(p) || !noInfinity(q));
                COrxPoint3dArray pts;
                sweep.check("g_cci " + pqr, [&] { ORX::g_cci(pts, p, r, q, 1.0); return pts; });
                sweep.check("g_cli0 " + pqr, [&] { ORX::g_cli0(pts, p, r, q, ps[3]); return pts; });
                sweep.check("g_cli " + pqr, [&] { ORX::g_cli(pts, p, r, q, ps[3]); return pts; });
                sweep.check("g_ali " + pqr, [&] { ORX::g_ali(pts, p, r, 0.2, 2.0, q, ps[3]); return pts; });
                sweep.check("g_cai " + pqr, [&] { ORX::g_cai(pts, p, r, q, 1.0, 0.2, 2.0); return pts; });
                sweep.check("g_aai " + pqr, [&] { ORX::g_aai(pts, p, r, 0.2, 2.0, q, 1.0, 1.0, 3.0); return pts; });
                sweep.check("g_bulg_int " + pqr, [&] {
                    ORX::g_bulg_int(pts, p, q, r, ps[3], ps[2], 0.5, false);
                    return pts;
                });
                sweep.check("g_tang2_cen " + pqr, [&] { ORX::g_tang2_cen(pts, p, r, q, 1.0, 0.5); return pts; });
                sweep.check("g_nm_pkt_tan " + pqr, [&] { ORX::g_nm_pkt_tan(pts, q, p, r); return pts; });
            }
        }
    }
    sweep.report();
}

TEST(ExtremeInputTest, SegmentAndPolylineFunctions) {
    Sweep sweep;
    std::vector<NamedPolyline> const lines = polylines();
    std::vector<COrxPoint3d> const ps = points();
    for (NamedPolyline const& each : lines) {
        COrxVertexArray const& vl = each.vl;
        std::string const n = each.name + ": ";
        sweep.infiniteInput(!noInfinity(vl));
        sweep.check(n + "geomLength", [&] { return vl.geomLength(); });
        sweep.check(n + "g_vl_area", [&] { return ORX::g_vl_area(vl); });
        sweep.check(n + "norm", [&] { return COrxVertexArray(vl).norm(false); });
        sweep.check(n + "offset", [&] { return COrxVertexArray(vl).offset(0.1, true); });
        sweep.check(n + "offset huge", [&] { return COrxVertexArray(vl).offset(1e300, true); });
        sweep.check(n + "pts", [&] { return vl.pts(true, 0.01); });
        sweep.check(n + "g_vl_expl", [&] { return ORX::g_vl_expl(vl, 8); });
        sweep.check(n + "extents", [&] {
            COrxPoint3d lo, hi;
            vl.extents(lo, hi);
            return hi;
        });
        sweep.check(n + "close", [&] { return COrxVertexArray(vl).close(true); });
        sweep.check(n + "fillet", [&] {
            COrxVertexArray copy(vl);
            ORX::g_vl_fillet_all(copy, 0.1);
            ORX::g_vl_chamfer_all(copy, 0.1);
            return copy;
        });
        sweep.check(n + "split", [&] { return ORX::g_vl_split_dist(vl, COrxArrayTempl<double>().append(0.5)); });
        sweep.check(n + "statics", [&] {
            double area = 0, ix = 0, iy = 0, ixy = 0;
            COrxPoint3d centroid;
            ORX::g_vl_statics(vl, area, centroid, ix, iy, ixy);
            return centroid;
        });
        for (COrxPoint3d const& p : ps) {
            std::string const np = n + name(p);
            sweep.infiniteInput(!noInfinity(vl) || !noInfinity(p));
            sweep.check(np + " isPoint", [&] { return vl.isPoint(p); });
            sweep.check(np + " distAtPoint", [&] {
                double d = 0;
                vl.distAtPoint(d, p);
                return d;
            });
            sweep.check(np + " pointAtDist", [&] {
                COrxPoint3d q;
                vl.pointAtDist(q, p.x);
                return q;
            });
            sweep.check(np + " breakVertex", [&] { return COrxVertexArray(vl).breakVertex(0, p); });
            sweep.check(np + " g_vl_pt_inside", [&] { return ORX::g_vl_pt_inside(vl, p, true); });
            sweep.check(np + " outline index", [&] { return COrxOutlineIndex(vl).locate(p); });
            sweep.check(np + " move", [&] { return COrxVertexArray(vl).move(COrxVector3d(p.x, p.y, 0)); });
            sweep.check(np + " rotate", [&] { return COrxVertexArray(vl).rotate(0.3, p); });
            for (int k = 0; k < vl.len() && k < 2; ++k) {
                COrxVertex const& v = vl[k];
                sweep.check(np + " vertex", [&] {
                    COrxPoint3d q;
                    v.pointAtDist(q, 0.5, false);
                    double d = 0;
                    v.distAtPoint(d, p);
                    return q.x + d + v.bulgLen() + v.radius() + v.wTan(p) + ORX::vx_start_angle(v) +
                           static_cast<double>(v.orientp(p));
                });
                sweep.check(np + " vertex points", [&] { return v.lotp(p) + (v.mid() - v.center()); });
                sweep.check(np + " vertex edits", [&] {
                    return COrxVertex(v).setEndPoint(p).setStartPoint(ps[3]).offset(0.2).offset(p);
                });
            }
        }
    }
    sweep.report();
}

TEST(ExtremeInputTest, BooleanAndRegionOperations) {
    Sweep sweep;
    std::vector<NamedPolyline> const lines = polylines();
    for (NamedPolyline const& a : lines) {
        for (NamedPolyline const& b : lines) {
            std::string const ab = a.name + " with " + b.name;
            sweep.infiniteInput(!noInfinity(a.vl) || !noInfinity(b.vl));
            for (int op = 0; op < 3; ++op) {
                auto const o = static_cast<COrxVertexArray::boolOper>(op);
                sweep.check(ab + " g_vl_bool " + std::to_string(op), [&] { return ORX::g_vl_bool(a.vl, b.vl, o); });
            }
            sweep.check(ab + " intersectWith", [&] { return a.vl.intersectWith(b.vl, 0); });
            sweep.check(ab + " regions", [&] {
                RegionList u, d, s;
                ORX::g_region_union(region({a.vl}), region({b.vl}), u);
                ORX::g_region_diff(region({a.vl}), region({b.vl}), d);
                ORX::g_region_sect(region({a.vl}), region({b.vl, a.vl}), s);
                return u + d + s;
            });
            sweep.check(ab + " g_vll_regions", [&] {
                return ORX::g_vll_regions(region({a.vl, b.vl}), 0);
            });
        }
    }
    sweep.report();
}
