#include "orx/polyline/shared/loop_moments.h"

#include <cmath>

namespace ORX {
namespace internal {
namespace {

// Below this half angle (radians) the closed forms lose digits to cancellation (the second
// moment across the chord to about 1e-15 relative at this angle, far more below it), and
// the Taylor series of the same integrals take over.
constexpr double kSeriesHalfAngle = 1.0;

// Taylor coefficients in a^2 of the segment integrals on the unit circle, a the half angle
// (A = a - sin a cos a and so on, see below), each divided by its leading power of a; enough
// terms for full double precision up to kSeriesHalfAngle.
constexpr double kAreaSeries[] = {2.0 / 3.0,
                                  -2.0 / 15.0,
                                  4.0 / 315.0,
                                  -2.0 / 2835.0,
                                  4.0 / 155925.0,
                                  -4.0 / 6081075.0,
                                  8.0 / 638512875.0,
                                  -2.0 / 10854718875.0,
                                  4.0 / 1856156927625.0,
                                  -4.0 / 194896477400625.0,
                                  8.0 / 49308808782358125.0};
constexpr double kFirstWSeries[] = {2.0 / 15.0,
                                    -11.0 / 315.0,
                                    17.0 / 3780.0,
                                    -461.0 / 1247400.0,
                                    8303.0 / 389188800.0,
                                    -24911.0 / 27243216000.0,
                                    168151.0 / 5557616064000.0,
                                    -1513361.0 / 1900704693888000.0,
                                    7913.0 / 463788509184000.0,
                                    -98065811.0 / 323150209236062208000.0,
                                    2206480753.0 / 484725313854093312000000.0,
                                    -6619442261.0 / 113425723441857835008000000.0};
constexpr double kSecondVSeries[] = {2.0 / 15.0,
                                     -4.0 / 63.0,
                                     2.0 / 135.0,
                                     -68.0 / 31185.0,
                                     124.0 / 552825.0,
                                     -8.0 / 467775.0,
                                     10922.0 / 10854718875.0,
                                     -1028.0 / 21837140325.0,
                                     292.0 / 162820783125.0,
                                     -10168.0 / 179304759208575.0,
                                     243148.0 / 160789593855515625.0,
                                     -1928.0 / 55938564585028125.0,
                                     178956968.0 / 263505041412702261046875.0,
                                     -9873488.0 / 845033408668321044046875.0};
constexpr double kSecondWSeries[] = {4.0 / 105.0,
                                     -4.0 / 315.0,
                                     4.0 / 1925.0,
                                     -64.0 / 289575.0,
                                     1208.0 / 70945875.0,
                                     -404.0 / 402026625.0,
                                     29116.0 / 618718975875.0,
                                     -12944.0 / 7218388051875.0,
                                     6904.0 / 121750145141625.0,
                                     -372824.0 / 246544043911790625.0,
                                     4971016.0 / 144228265688397515625.0,
                                     -736448.0 / 1084382886472025765625.0,
                                     477218512.0 / 40843281418968850462265625.0};

template <int N>
double series(double const (&coefficients)[N], double x) {
    double sum = 0.0;
    for (int k = N - 1; k >= 0; --k) {
        sum = sum * x + coefficients[k];
    }
    return sum;
}

SegmentMoments scaled(double area, double firstW, double secondV, double secondW, double length) {
    double const l2 = length * length;
    return {area * l2, firstW * l2 * length, secondV * l2 * l2, secondW * l2 * l2};
}

}  // namespace

// On the circle of radius r with half angle a (the segment spans 2a, its chord 2 r sin a),
// with s = sin a and c = cos a, integrating across the chord from the sector of the circle
// minus the triangle from the centre:
//   area    = r^2 (a - s c)
//   firstW  = r^3 (2/3 s^3 - c (a - s c))                   about the chord
//   secondV = r^4 ((a - s c) / 4 - s^3 c / 6)               along the chord
//   secondW = r^4 ((a + s c) / 4 - s c^3 / 2 - 4/3 c s^3 + c^2 (a - s c))
// For flat arcs these differences cancel; there the same integrals come from their series,
// scaled by the half chord h = r s instead of r (a centre a million chords away would
// overflow r and lose the digits): area = h^2 (a/s)^2 a A(a^2), firstW = h^3 (a/s)^3 a^2
// F(a^2), secondV = h^4 (a/s)^4 a V(a^2), secondW = h^4 (a/s)^4 a^3 W(a^2).
SegmentMoments circularSegmentMoments(double chord, double absBulge) {
    double const a = 2 * std::atan(absBulge);
    double const half = chord / 2;
    if (a < kSeriesHalfAngle) {
        double const q = a / std::sin(a);
        double const q2 = q * q, a2 = a * a;
        return scaled(q2 * a * series(kAreaSeries, a2), q2 * q * a2 * series(kFirstWSeries, a2),
                      q2 * q2 * a * series(kSecondVSeries, a2),
                      q2 * q2 * a2 * a * series(kSecondWSeries, a2), half);
    }
    // sin a and cos a from the bulge t = tan(a / 2) itself, which stays exact for the near
    // full circles of a huge bulge, where a rounds to pi.
    double const t = absBulge, inverse = 1 / absBulge;
    double const s = 2 / (t + inverse);
    double const c = (inverse - t) / (t + inverse);
    double const area = a - s * c;
    double const s3 = s * s * s;
    return scaled(area, 2.0 / 3.0 * s3 - c * area, area / 4 - s3 * c / 6,
                  (a + s * c) / 4 - s * c * c * c / 2 - 4.0 / 3.0 * c * s3 + c * c * area,
                  half / s);
}

bool isFiniteLoop(COrxVertexArray const& vl) {
    for (int k = 0; k < vl.len(); ++k) {
        COrxVertex const& v = vl[k];
        if (!v.startPoint().isValid() || !v.endPoint().isValid() || !std::isfinite(v.bulge())) {
            return false;
        }
    }
    return vl.isClosed();
}

AreaMoments loopMoments(COrxVertexArray const& vl, COrxPoint3d const& origin) {
    AreaMoments m;
    for (int k = 0; k < vl.len(); ++k) {
        COrxVertex const& v = vl[k];
        double const px = v.startPoint().x - origin.x, py = v.startPoint().y - origin.y;
        double const qx = v.endPoint().x - origin.x, qy = v.endPoint().y - origin.y;
        m.addTriangle(px, py, qx, qy);
        double const chord = std::hypot(qx - px, qy - py);
        if (v.isStraight() || chord == 0.0) {
            continue;
        }
        SegmentMoments const seg = circularSegmentMoments(chord, std::fabs(v.bulge()));
        // Chord frame: e along the chord, d across it towards the arc (right of the chord
        // for a positive bulge), m its midpoint.
        double const ex = (qx - px) / chord, ey = (qy - py) / chord;
        double const toArc = v.bulge() > 0.0 ? 1.0 : -1.0;
        double const dx = toArc * ey, dy = -toArc * ex;
        double const mx = (px + qx) / 2, my = (py + qy) / 2;
        AreaMoments piece;
        piece.area = seg.area;
        piece.firstX = seg.area * mx + seg.firstW * dx;
        piece.firstY = seg.area * my + seg.firstW * dy;
        piece.secondXX = seg.area * mx * mx + seg.secondV * ex * ex + seg.secondW * dx * dx +
                         2 * mx * seg.firstW * dx;
        piece.secondYY = seg.area * my * my + seg.secondV * ey * ey + seg.secondW * dy * dy +
                         2 * my * seg.firstW * dy;
        piece.secondXY = seg.area * mx * my + seg.secondV * ex * ey + seg.secondW * dx * dy +
                         seg.firstW * (mx * dy + my * dx);
        m.add(piece, toArc);
    }
    return m;
}

}  // namespace internal
}  // namespace ORX
