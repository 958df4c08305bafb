#include "diagram/analytic_bar.h"

namespace
{

constexpr int kBarBottom = 180;

}  // namespace

void DrawAnalyticBar(DisplayList& list, const std::vector<FieldPiece>& pieces)
{
    if (pieces.empty())
        return;
    for (const FieldPiece& piece : pieces)
        list.Rect(PieceColor(piece), piece.left, kFieldTop, piece.right, kBarBottom);

    const int left = pieces.front().left;
    const int right = pieces.back().right;
    list.Line(left, kFieldTop, right, kFieldTop);
    list.Line(left, kBarBottom, right, kBarBottom);
}
