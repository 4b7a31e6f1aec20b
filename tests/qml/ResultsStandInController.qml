// Stands in for the controller's node queries with a hand-made tree, so that a test can put exactly the numbers
// it needs (ties, one-action nodes, odd weights) in front of the Results page. It records the lock calls.
import QtQuick

QtObject {
    // Node index → {meta, actions, stats, combos, buckets, strategy}; missing parts answer empty.
    property var nodes: ({})
    property int resultIterations: 1
    property real resultEvOop: 0
    property real resultEvIp: 0
    property int resultStartingPot: 0
    property real resultExploitability: 0

    property var lockCalls: []
    property var clearCalls: []
    property int reSolveCount: 0

    signal resultsChanged()

    function _part(index, key, empty) {
        const node = nodes[index]
        return node && node[key] !== undefined ? node[key] : empty
    }

    function treeNodeCount() {
        return Object.keys(nodes).length
    }

    function nodeMeta(index) {
        return _part(index, "meta", {})
    }

    function nodeActions(index) {
        return _part(index, "actions", [])
    }

    function nodeActionStats(index) {
        return _part(index, "stats", [])
    }

    function nodeHandCombos(index) {
        return _part(index, "combos", [])
    }

    function nodeHandBuckets(index) {
        return _part(index, "buckets", [])
    }

    function nodeHandStrategy(index) {
        return _part(index, "strategy", {})
    }

    function setNodeLock(nodeIndex, hand, actionIndex, actionProb) {
        lockCalls = lockCalls.concat([{nodeIndex: nodeIndex, hand: hand, actionIndex: actionIndex,
                                       actionProb: actionProb}])
    }

    function clearNodeLocks(nodeIndex) {
        clearCalls = clearCalls.concat([nodeIndex])
    }

    function reSolveWithNodeLocks() {
        ++reSolveCount
    }
}
