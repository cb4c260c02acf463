// COrxPoint3dTol: a scope guard that narrows or widens COrxPoint3d::tol.
//
//     {
//         COrxPoint3dTol widen(0.01);     // points 0.005 apart now compare equal
//         ...
//     }                                   // the previous tolerance is back
#ifndef ORX_GEOM_TOLERANCE_H
#define ORX_GEOM_TOLERANCE_H

#include "orx/foundation/obj.h"

namespace ORX {
// Point tolerances at or below this are refused by COrxPoint3dTol (the global stays).
constexpr double kMinPointTol = 1e-12;
}  // namespace ORX

class ORX_API COrxPoint3dTol : public COrxObj {
public:
    // Saves the current tolerance.
    COrxPoint3dTol();
    // Saves the current tolerance, then sets t when t > ORX::kMinPointTol.
    explicit COrxPoint3dTol(double t);
    // Copies the saved value, so both guards restore the same tolerance.
    COrxPoint3dTol(COrxPoint3dTol const& other);
    // Writes the saved value back.
    ~COrxPoint3dTol() override;

    // Sets the global tolerance under the same rule; the saved value is not touched.
    COrxPoint3dTol& operator=(double t);
    // The saved value.
    operator double() const { return m_saved; }
    // Guards are not reassigned from one another (which saved value would win?).
    COrxPoint3dTol& operator=(COrxPoint3dTol const&) = delete;

private:
    double m_saved;
};

#endif  // ORX_GEOM_TOLERANCE_H
