// A lighter, self-contained range editor: uniform percentage buttons, one click per hand and a plain reading of
// the text. It reads only hands, pairs with a plus, weights after a colon and a bare percentage, and a click
// rewrites the range as the list of its hands, weights dropped. The Setup page uses the full range cards instead.
import QtQuick
import Kelvane
import QtQuick.Layouts
import "RangeText.js" as RangeText

Card {
    id: root

    property string rangeText: ""
    property string label: qsTr("Range")

    readonly property Theme _darkTheme: Theme {}
    readonly property var _theme: theme ? theme : _darkTheme
    readonly property Typography _type: Typography {}
    readonly property var _hands: RangeText.allHands()
    readonly property var _weights: parseRangeText(rangeText)
    readonly property int _matrixCellSize: 30
    readonly property int _buttonHeight: 32
    readonly property var _presets: [
        {text: qsTr("100%"), range: "100%"},
        {text: qsTr("50%"), range: "50%"},
        {text: qsTr("25%"), range: "25%"},
        {text: qsTr("Clear"), range: ""}
    ]

    signal rangeChanged(string newRange)

    function _isHand(text) {
        return _hands.indexOf(text) >= 0
    }

    // Pairs with a plus climb to aces; two ranks stand for both forms; any other plus, and dashes, read nothing.
    function _expand(text) {
        const upper = text.slice(0, 2).toUpperCase()
        if (text.length === 3 && text[2] === "+") {
            const pairs = _hands.filter(hand => hand.length === 2)
            return pairs.slice(0, pairs.indexOf(upper) + 1)
        }
        if (text.length === 2)
            return upper[0] === upper[1] ? [upper] : [upper + "s", upper + "o"]
        return [upper + text.slice(2).toLowerCase()]
    }

    // Hand label to weight in the order first written; weights are taken as written, without clamping.
    function _readRange(text) {
        const weights = new Map()
        const source = String(text).trim()
        if (/^\d+(\.\d+)?\s*%$/.test(source)) {
            const fraction = parseFloat(source) / 100
            for (const hand of _hands)
                weights.set(hand, fraction)
            return weights
        }
        for (const token of source.split(/[\s,]+/)) {
            const parts = token.split(":")
            const written = parseFloat(parts[1])
            for (const hand of _expand(parts[0])) {
                if (_isHand(hand))
                    weights.set(hand, isNaN(written) ? 1.0 : written)
            }
        }
        return weights
    }

    function parseRangeText(text) {
        const weights = {}
        _readRange(text).forEach((weight, hand) => weights[hand] = weight)
        return weights
    }

    function _handCount() {
        return _hands.filter(hand => _weights[hand] > 0).length
    }

    function _setRange(text) {
        rangeText = text
        rangeChanged(text)
    }

    // The hands keep the order in which the text names them; a plain object would put 22 to 99 first.
    function _toggle(hand, currentWeight) {
        const weights = _readRange(rangeText)
        if (currentWeight > 0)
            weights.delete(hand)
        else
            weights.set(hand, 1.0)
        const hands = []
        weights.forEach((weight, key) => {
            if (weight > 0)
                hands.push(key)
        })
        _setRange(hands.join(", "))
    }

    ColumnLayout {
        spacing: root._theme.spaceMd

        RowLayout {
            Layout.fillWidth: true

            Text {
                objectName: "label"
                Layout.fillWidth: true
                text: root.label
                color: root._theme.text
                font.family: root._theme.fontFamily
                font.pixelSize: root._type.headingSm
                font.weight: root._type.weightSemibold
            }

            Text {
                objectName: "handCount"
                text: qsTr("%1 hands").arg(root._handCount())
                color: root._theme.textMuted
                font.family: root._theme.fontFamily
                font.pixelSize: root._type.labelLg
            }
        }

        RowLayout {
            spacing: root._theme.spaceSm

            Repeater {
                model: root._presets

                SecondaryButton {
                    required property var modelData
                    objectName: "preset_" + modelData.text
                    implicitHeight: root._buttonHeight
                    theme: root._theme
                    text: modelData.text
                    onClicked: root._setRange(modelData.range)
                }
            }
        }

        HandMatrix {
            objectName: "matrix"
            theme: root._theme
            cellSize: root._matrixCellSize
            selectable: true
            weights: root._weights
            onHandClicked: (hand, currentWeight) => root._toggle(hand, currentWeight)
        }

        ThemedTextField {
            objectName: "rangeField"
            Layout.fillWidth: true
            theme: root._theme
            elideWhenIdle: true
            placeholderText: qsTr("e.g., AA, KK, AKs, QQ+ or 50%")
            text: root.rangeText
            font.family: root._theme.fontMono
            font.pixelSize: root._type.bodySm
            onTextEdited: root._setRange(text)
        }
    }
}
