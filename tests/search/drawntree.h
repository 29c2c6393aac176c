// DrawnTree: a game tree drawn as text, searched by the real search, so that trees can be made up
// for what positions show rarely.
#ifndef TESTS_SEARCH_DRAWNTREE_H
#define TESTS_SEARCH_DRAWNTREE_H

#include "tests/support/enginerig.h"

#include <string>
#include <vector>

// A node is its material for the side to move, 0 if not given, then its replies in parentheses, or
// '#' when the side to move has none. "x" in front: it is reached by a capture; "=ab" in place of a
// node: that reply leads to the position of node ab. A node without replies has three quiet ones
// that lead on for ever; seen from one side their values are all its own.
//
// The root's replies are named a, b, c ..., theirs aa, ab and so on.
struct DrawnTree : EngineRig {
    struct Node {
        bool isCapture = false;
        bool isEnd = false;
        int material = 0;
        std::string sameAs;
        std::vector<Node> replies;
    };

    Node root;
    int rootPly;
    std::string listed; // the nodes whose moves were listed, in order
    std::string cloned; // the engines made: node and depth budget

    explicit DrawnTree(const std::string &text, int ply = 0);

    // One iteration from the root, as the drivers run it; its value. The score's depth is in
    // `score`, the principal variation in `line`.
    int iterate(int plies);
    // The root searched as a node at `level`, with a depth budget in tenths of a ply; the move
    // chosen as a letter, "none" without one.
    std::string searchAt(int level, int budget, int alpha, int beta);
    // The move of this letter at the root.
    LegalMove &move(char letter);
    // The principal variation as the name of its last node.
    std::string lineName() const;
};

#endif
