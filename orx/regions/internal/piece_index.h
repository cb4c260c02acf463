// Where the pieces of each original segment stand in a polyline that is being cut: the
// pieces of one segment stay together and in order, so the first piece of segment o is the
// number of pieces of the segments before it (a Fenwick tree of the counts).
#ifndef ORX_REGIONS_INTERNAL_PIECE_INDEX_H
#define ORX_REGIONS_INTERNAL_PIECE_INDEX_H

#include <vector>

namespace ORX {
namespace internal {

class PieceIndex {
public:
    // n segments of one piece each.
    explicit PieceIndex(int n);

    int count(int original) const { return m_counts[static_cast<std::size_t>(original)]; }
    // Index of the first piece of the segment in the polyline.
    int firstPiece(int original) const;
    // The segment was cut: one piece more.
    void addPiece(int original);

private:
    std::vector<int> m_counts;
    std::vector<int> m_tree;  // Fenwick tree over m_counts, 1-based
};

}  // namespace internal
}  // namespace ORX

#endif  // ORX_REGIONS_INTERNAL_PIECE_INDEX_H
