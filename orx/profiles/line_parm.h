// COrxLineParm: the dash pattern of a drawn line and the position in it.
//
// The pattern is a list of lengths: a non-negative entry is a stretch drawn with the pen
// down, a negative one a gap of its absolute length. A line is drawn by taking the current
// entry's length (operator double) with the pen as pen() says, then rotate() to the next
// entry, round and round. A pattern of fewer than two entries is no pattern: pen() is false
// and the length 0.
//
//     COrxLineParm dashes(5.0, -2.0);
//     double run = dashes;       // 5, pen() true
//     dashes.rotate();           // 2, pen() false
#ifndef ORX_PROFILES_LINE_PARM_H
#define ORX_PROFILES_LINE_PARM_H

#include "orx/foundation/array_templ.h"
#include "orx/foundation/obj.h"

class ORX_API COrxLineParm : public COrxObj {
public:
    // No pattern.
    COrxLineParm();
    // Dash and gap of equal length: {d, -d}; a d of 0.0 becomes 1.0.
    explicit COrxLineParm(double d);
    // {a, b}.
    COrxLineParm(double a, double b);
    explicit COrxLineParm(COrxArrayTempl<double> const& pattern);
    COrxLineParm(COrxLineParm const& other);
    COrxLineParm& operator=(COrxLineParm const& other);
    ~COrxLineParm() override;

    // The pen is down: the current entry (a negative index counting from the end, modulo the
    // length) is at least 0.0. False for fewer than two entries.
    bool pen() const;
    // Moves to the next entry, after the last back to the first; nothing for fewer than two
    // entries.
    COrxLineParm& rotate();
    // The length of the current stretch or gap: the absolute value of the current entry;
    // 0.0 for fewer than two entries.
    operator double() const;

    COrxArrayTempl<double> const& pattern() const { return m_pattern; }
    int index() const { return m_index; }

private:
    // The current entry's position in the pattern (at least two entries).
    int current() const;

    COrxArrayTempl<double> m_pattern;
    int m_index;
};

#endif  // ORX_PROFILES_LINE_PARM_H
