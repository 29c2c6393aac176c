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
    std::string listed; // the nodes whose moves the last search listed, in order
    std::string cloned; // the engines it made: node and depth budget

    explicit DrawnTree(const std::string &text, int ply = 0);

    // The root searched as a node at `level` and as many plies deep: at level 0 an iteration as the
    // drivers run it. The move chosen as a letter, "none" without one.
    std::string searchNode(int plies, int level = 0, int alpha = Score::none,
                           int beta = Score::none);
    // The move of this letter at the root.
    LegalMove &move(char letter);
};

#endif
