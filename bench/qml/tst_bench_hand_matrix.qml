import QtQuick
import QtTest
import Kelvane
import "../../qml/components/RangeText.js" as RangeText

// Timings of the hand matrix and of the range text reading. It stands outside the test folder, so it runs only
// when named: kelvane_qml_tests -input bench/qml.
Item {
    id: root

    width: 1000
    height: 600

    HandMatrix {
        id: matrix
        cellSize: 36
    }

    // The Results page's grid: mixed actions filled from the bottom.
    HandMatrix {
        id: strategyMatrix
        x: matrix.width
        cellSize: 28
        weightDisplayMode: "verticalFill"
        actionTypes: ["check", "bet 33%", "bet 75%", "raise 200%"]
    }

    TestCase {
        id: testCase

        readonly property var hands: RangeText.allHands()
        property int round: 0
        property string longText: ""

        name: "HandMatrixBenchmark"
        when: windowShown

        // A full range whose every weight differs from the previous round's, so that every cell redraws.
        function fullWeights() {
            ++round
            const weights = {}
            hands.forEach((hand, i) => weights[hand] = ((i * 37 + round * 11) % 100 + 1) / 100)
            return weights
        }

        function fullStrategy() {
            ++round
            const probs = {}
            hands.forEach((hand, i) => {
                const first = ((i * 13 + round * 7) % 10) / 20
                const second = ((i * 29 + round * 3) % 10) / 20
                probs[hand] = [first, second, (1 - first - second) / 2, (1 - first - second) / 2]
            })
            return probs
        }

        // Every hand once, with a weight, then the preset ranges of the shell: a long, realistic text.
        function longRangeText() {
            const tokens = hands.map((hand, i) => hand + ":" + RangeText.formatWeight((i % 9 + 1) / 10))
            return tokens.join(", ") + ", 88+,A8s+,A5s-A2s:0.5,AJo+,ATo:0.75,K9s+,KQo,KJo:0.75,KTo:0.25,Q9s+,"
                   + "QJo:0.5,J8s+,JTo:0.25,T8s+,T7s:0.45,97s+,96s:0.45,87s,86s:0.75,85s:0.45,75s+:0.75"
        }

        function initTestCase() {
            longText = longRangeText()
            matrix.weights = fullWeights()
            strategyMatrix.actionProbs = fullStrategy()
            strategyMatrix.weights = fullWeights()
            waitForRendering(matrix)
        }

        function benchmark_repaintFullRange() {
            matrix.weights = fullWeights()
            verify(waitForRendering(matrix))
        }

        function benchmark_repaintMixedStrategy() {
            strategyMatrix.actionProbs = fullStrategy()
            strategyMatrix.weights = fullWeights()
            verify(waitForRendering(strategyMatrix))
        }

        function benchmark_parseLongRangeText() {
            compare(Object.keys(RangeText.parseRangeWeights(longText)).length, 169)
        }

        function benchmark_toggleHandInLongText() {
            compare(RangeText.toggleHand(longText, "A3s", 0.5, 1).indexOf("A3s"), -1)
        }
    }
}
