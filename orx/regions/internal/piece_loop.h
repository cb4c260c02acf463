// A polyline while it is being cut: its pieces in a linked list, so that a cut adds a piece
// after the one it splits without moving the rest, and the pieces of each original segment
// stay together and in order.
//
// Pieces are numbered in the order they were made: the first n are the original segments,
// every cut appends one. next()/previous() run through the polyline in its order, cyclically.
//
// An original segment is read from the polyline itself until it changes: only the pieces a
// cut makes or changes are stored here, so a long polyline that is cut in a few places is
// not copied.
#ifndef ORX_REGIONS_INTERNAL_PIECE_LOOP_H
#define ORX_REGIONS_INTERNAL_PIECE_LOOP_H

#include <vector>

#include "orx/foundation/shared/scratch_allocator.h"
#include "orx/polyline/vertex_array.h"

namespace ORX {
namespace internal {

class PieceLoop {
public:
    // Keeps a reference: vl must outlive the loop and stay unchanged while it is used.
    explicit PieceLoop(COrxVertexArray const& vl);

    int originals() const { return m_originals; }
    // The piece that comes after / before piece r in the polyline (cyclically).
    int next(int r) const { return m_next[static_cast<std::size_t>(r)]; }
    int previous(int r) const { return m_previous[static_cast<std::size_t>(r)]; }
    // The first piece of the next original segment (or the first piece, after the last one):
    // the pieces of original o run from o up to, not including, this one.
    int endOf(int o) const { return o + 1 < m_originals ? o + 1 : 0; }

    // The original segment piece r was cut from.
    int origin(int r) const { return m_origin[static_cast<std::size_t>(r)]; }
    int size() const { return static_cast<int>(m_slot.size()); }

    COrxVertex const& piece(int r) const {
        int const slot = m_slot[static_cast<std::size_t>(r)];
        return slot < 0 ? m_source[r] : m_own[static_cast<std::size_t>(slot)];
    }
    // Piece r, to be changed. The reference holds until the next call of changePiece() or
    // cut(): either may move the stored pieces.
    COrxVertex& changePiece(int r);

    // Cuts piece r at the foot of p (COrxVertexArray::breakVertex): r keeps the part up to the
    // cut, a new piece after it the rest. False, nothing changed, when breakVertex would not
    // cut; else true with the new piece's number.
    bool cut(int r, COrxPoint3d const& p, int& added);

    // The pieces in polyline order, as a polyline with the given normal.
    COrxVertexArray written(COrxVector3d const& normal) const;

private:
    COrxVertex const* m_source;     // the original segments
    ScratchVector<int> m_slot;      // per piece: its place in m_own, or -1 (in m_source)
    std::vector<COrxVertex> m_own;  // the pieces made or changed by cutting
    ScratchVector<int> m_next;
    ScratchVector<int> m_previous;
    ScratchVector<int> m_origin;
    int m_originals;
};

}  // namespace internal
}  // namespace ORX

#endif  // ORX_REGIONS_INTERNAL_PIECE_LOOP_H
