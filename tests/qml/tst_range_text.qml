import QtQuick
import QtTest
import "../../qml/components/RangeText.js" as RangeText

TestCase {
    id: testCase

    name: "RangeText"

    function positiveHands(weights) {
        return RangeText.allHands().filter(hand => weights[hand] > 0)
    }

    function test_allHandsAreTheGridInRowOrder() {
        const hands = RangeText.allHands()
        compare(hands.length, 169)
        compare(hands[0], "AA")
        compare(hands[1], "AKs")
        compare(hands[13], "AKo")
        compare(hands[168], "22")
        compare(new Set(hands).size, 169)
    }

    function test_expandHand_data() {
        return [
            {tag: "pair range", hand: "99-22", expected: ["99", "88", "77", "66", "55", "44", "33", "22"]},
            {tag: "pair range as written", hand: "22-44", expected: ["22", "33", "44"]},
            {tag: "suited kicker range", hand: "A5s-A2s", expected: ["A5s", "A4s", "A3s", "A2s"]},
            {tag: "offsuit kicker range upwards", hand: "K2o-K4o", expected: ["K2o", "K3o", "K4o"]},
            {tag: "mixed dash keeps the first part", hand: "KQs-J9s", expected: ["KQs"]},
            {tag: "suited plus", hand: "A8s+", expected: ["A8s", "A9s", "ATs", "AJs", "AQs", "AKs"]},
            {tag: "offsuit plus", hand: "K9o+", expected: ["K9o", "KTo", "KJo", "KQo"]},
            {tag: "pair plus", hand: "QQ+", expected: ["AA", "KK", "QQ"]},
            {tag: "aces plus", hand: "AA+", expected: ["AA"]},
            {tag: "both forms", hand: "AK", expected: ["AKs", "AKo"]},
            {tag: "pair", hand: "77", expected: ["77"]},
            {tag: "lower-case both forms", hand: "ak", expected: ["AKs", "AKo"]},
            {tag: "lower-case pair", hand: "tt", expected: ["TT"]},
            {tag: "mixed case hand", hand: "kQS", expected: ["KQs"]},
            {tag: "lower-case plus", hand: "a8s+", expected: ["A8s", "A9s", "ATs", "AJs", "AQs", "AKs"]},
            {tag: "lower-case pair range", hand: "jj-99", expected: ["JJ", "TT", "99"]},
            {tag: "plus on two ranks unchanged", hand: "AK+", expected: ["AK+"]},
            {tag: "long text unchanged", hand: "AsKd", expected: ["AsKd"]},
            {tag: "one character unchanged", hand: "A", expected: ["A"]}
        ]
    }

    function test_expandHand(data) {
        compare(RangeText.expandHand(data.hand), data.expected)
    }

    function test_plusRangesEndBelowTheirFirstRank() {
        const suited = RangeText.expandHand("A8s+")
        compare(suited[suited.length - 1], "AKs")
        const offsuit = RangeText.expandHand("K9o+")
        compare(offsuit[offsuit.length - 1], "KQo")
    }

    function test_parseBlankTextGivesNoHands() {
        for (const blank of ["", "   ", "\n\t", undefined, null])
            compare(Object.keys(RangeText.parseRangeWeights(blank)).length, 0, "for " + JSON.stringify(blank))
    }

    function test_parseBarePercentageGivesEveryHand() {
        const weights = RangeText.parseRangeWeights("50%")
        compare(Object.keys(weights).length, 169)
        for (const hand of RangeText.allHands())
            compare(weights[hand], 0.5, hand)
        compare(RangeText.parseRangeWeights(" 37.5 % ")["72o"], 0.375)
    }

    function test_parsePercentageIsClamped() {
        compare(RangeText.parseRangeWeights("150%")["AA"], 1)
    }

    function test_parsePercentageWithOtherTokensIsNoPercentage() {
        const weights = RangeText.parseRangeWeights("50%, AA")
        compare(positiveHands(weights), ["AA"])
    }

    function test_parseWeightsAndClamping() {
        const weights = RangeText.parseRangeWeights("AA:1.5, KK:-0.5, QQ:0.25, JJ:x, TT:, 99")
        compare(weights["AA"], 1)
        compare(weights["KK"], 0)
        compare(weights["QQ"], 0.25)
        compare(weights["JJ"], 1, "a weight that does not read counts as full")
        compare(weights["TT"], 1, "an empty weight counts as full")
        compare(weights["99"], 1)
    }

    function test_parseLaterTokenOverwrites() {
        const weights = RangeText.parseRangeWeights("AA:0.5, AA:0, QQ+, KK:0.25")
        compare(weights["AA"], 1, "QQ+ came after both AA tokens")
        compare(weights["KK"], 0.25)
        compare(weights["QQ"], 1)
    }

    function test_parseSplitsAtCommasAndWhiteSpace() {
        const weights = RangeText.parseRangeWeights("AA,KK\nQQ\tJJ  TT:0.5,,")
        compare(positiveHands(weights), ["AA", "KK", "QQ", "JJ", "TT"])
        compare(weights["TT"], 0.5)
    }

    function test_parseSkipsOneCharacterTokens() {
        const weights = RangeText.parseRangeWeights("A, K, AA")
        compare(Object.keys(weights), ["AA"])
    }

    function test_parseRangesOfEveryForm() {
        const weights = RangeText.parseRangeWeights("88+, A5s-A2s:0.5, AJo+, K9o+:0.75")
        compare(positiveHands(weights).length, 7 + 4 + 3 + 4)
        compare(weights["A3s"], 0.5)
        compare(weights["AQo"], 1)
        compare(weights["KJo"], 0.75)
    }

    function test_parsePlusOnTwoRanksPaintsNothing() {
        compare(positiveHands(RangeText.parseRangeWeights("AK+")), [])
    }

    function test_formatWeight_data() {
        return [
            {tag: "half", value: 0.5, expected: "0.5"},
            {tag: "three decimals", value: 0.125, expected: "0.125"},
            {tag: "rounded to three", value: 0.12345, expected: "0.123"},
            {tag: "zero", value: 0, expected: "0"},
            {tag: "whole", value: 100, expected: "100"},
            {tag: "percent", value: 99.95, expected: "99.95"},
            {tag: "trailing zero", value: 5.5, expected: "5.5"}
        ]
    }

    function test_formatWeight(data) {
        compare(RangeText.formatWeight(data.value), data.expected)
    }

    function test_toggleAddsAtTheClickWeight_data() {
        return [
            {tag: "half", addWeight: 0.5, expected: "AA, 88:0.5"},
            {tag: "full", addWeight: 1, expected: "AA, 88"},
            {tag: "almost full", addWeight: 0.9995, expected: "AA, 88"},
            {tag: "just below the bare form", addWeight: 0.998, expected: "AA, 88:0.998"},
            {tag: "above one", addWeight: 2, expected: "AA, 88"},
            {tag: "below zero", addWeight: -1, expected: "AA, 88:0"},
            {tag: "not a number", addWeight: NaN, expected: "AA, 88"},
            {tag: "a third", addWeight: 1 / 3, expected: "AA, 88:0.333"}
        ]
    }

    function test_toggleAddsAtTheClickWeight(data) {
        compare(RangeText.toggleHand("AA", "88", 0, data.addWeight), data.expected)
    }

    function test_toggleIntoEmptyText() {
        compare(RangeText.toggleHand("", "AKs", 0, 1), "AKs")
    }

    function test_toggleInPercentageClearsEverything() {
        compare(RangeText.toggleHand("50%", "AKs", 0.5, 1), "")
        compare(RangeText.toggleHand("100 %", "72o", 1, 0.5), "")
    }

    function test_toggleInZeroPercentageGivesOnlyTheHand() {
        compare(RangeText.toggleHand("0%", "AKs", 0, 0.5), "AKs:0.5")
    }

    function test_toggleRemovesTheWholeCoveringToken() {
        compare(RangeText.toggleHand("AK, QQ", "AKs", 1, 1), "QQ")
        compare(RangeText.toggleHand("KK, A5s-A2s:0.5, 99", "A3s", 0.5, 1), "KK, 99")
        compare(RangeText.toggleHand("QQ+, AKs", "KK", 1, 1), "AKs")
        compare(RangeText.toggleHand("AA:0.5, AA:1", "AA", 1, 1), "")
    }

    function test_toggleRemovesAPairFromItsRange() {
        compare(RangeText.toggleHand("99-22,AKs", "55", 1, 1), "AKs")
    }

    function test_toggleRewritesSeparatorsAsCommaSpace() {
        compare(RangeText.toggleHand("AA,KK\nQQ", "JJ", 0, 1), "AA, KK, QQ, JJ")
    }

    function test_normalizeAppliesAWeightToTheGroupBeforeIt() {
        compare(RangeText.normalizeImportedRangeText("AA,KK:0.5,QQ"), "AA:0.5, KK:0.5, QQ")
    }

    function test_normalizeCarriageReturns() {
        compare(RangeText.normalizeImportedRangeText("AA\r\nKK:0.5\rQQ\r\n"), "AA:0.5, KK:0.5, QQ")
    }

    function test_normalizeWeightThatIsNoNumber() {
        compare(RangeText.normalizeImportedRangeText("AA, KK:abc, QQ:0.25"), "AA, KK, QQ:0.25")
    }

    function test_normalizeClampsAndWritesFullWeightsBare() {
        compare(RangeText.normalizeImportedRangeText("AA:3, KK:-1, QQ:0.9995, JJ:0.12345"),
                "AA, KK:0, QQ, JJ:0.123")
    }

    function test_normalizeSkipsTokensWithoutAdjacentRanks() {
        compare(RangeText.normalizeImportedRangeText("hands: A, x7, 5%, AK:0.5, 9-8, ak"), "AK:0.5, ak")
    }

    function test_normalizeFlushesOnAWeightWithoutBase() {
        compare(RangeText.normalizeImportedRangeText("AA KK :0.5 QQ"), "AA:0.5, KK:0.5, QQ")
    }

    function test_normalizeEmptyText() {
        compare(RangeText.normalizeImportedRangeText(""), "")
        compare(RangeText.normalizeImportedRangeText("\r\n , "), "")
    }
}
