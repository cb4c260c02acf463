#include "orx/regions/internal/piece_index.h"

namespace ORX {
namespace internal {

PieceIndex::PieceIndex(int n)
    : m_counts(static_cast<std::size_t>(n), 1), m_tree(static_cast<std::size_t>(n) + 1, 0) {
    // Every count is 1: node k covers the (k & -k) counts ending at k.
    for (int k = 1; k <= n; ++k) {
        m_tree[static_cast<std::size_t>(k)] = k & -k;
    }
}

int PieceIndex::firstPiece(int original) const {
    int sum = 0;
    for (int k = original; k > 0; k -= k & -k) {
        sum += m_tree[static_cast<std::size_t>(k)];
    }
    return sum;
}

void PieceIndex::addPiece(int original) {
    ++m_counts[static_cast<std::size_t>(original)];
    int const n = static_cast<int>(m_counts.size());
    for (int k = original + 1; k <= n; k += k & -k) {
        ++m_tree[static_cast<std::size_t>(k)];
    }
}

}  // namespace internal
}  // namespace ORX
