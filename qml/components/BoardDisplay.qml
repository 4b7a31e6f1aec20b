// The board's five slots: the flop in one tile, then turn and river, optionally clickable for editing.
import QtQuick

Item {
    id: root

    property var theme: null
    property string boardText: ""
    property bool editable: false
    // null lets every slot be clicked; otherwise only the listed indices.
    property var clickableIndices: null
    property bool compact: false
    property real cardScale: 1.0
    property real horizontalPadding: compact ? 0 : 10

    readonly property var cards: _parseCards(boardText)
    readonly property string streetLabel: _streetFor(_realCardCount(cards))

    // Dark values used when the board is shown without a theme.
    readonly property var _fallback: ({
        surface2: "#21262D",
        stroke: "#30363D",
        textMuted: "#8B949E",
        radiusMd: 12
    })
    readonly property int _slotCount: 5
    readonly property int _turnIndex: 3
    readonly property int _riverIndex: 4
    readonly property string _ranks: "AKQJT98765432"
    readonly property string _suits: "shdc"
    readonly property int _labelSize: 11
    readonly property int _gap: compact ? 6 : 8
    readonly property int _tilePadding: compact ? 4 : 6

    signal cardClicked(int index)

    function _t(token) {
        return theme ? theme[token] : _fallback[token]
    }

    function _cardFromPair(pair) {
        if (pair.length !== 2)
            return ""
        const rank = pair[0].toUpperCase()
        const suit = pair[1].toLowerCase()
        return _ranks.indexOf(rank) >= 0 && _suits.indexOf(suit) >= 0 ? rank + suit : ""
    }

    // Pairs that are not a card, such as "__", become empty slots; the list always has five entries.
    function _parseCards(text) {
        const compactText = text.replace(/\s+/g, "")
        const result = []
        for (let i = 0; i < _slotCount; ++i)
            result.push(_cardFromPair(compactText.substr(2 * i, 2)))
        return result
    }

    function _realCardCount(list) {
        return list.filter(card => card !== "").length
    }

    // Street names are compared elsewhere in code, so they stay in English.
    function _streetFor(count) {
        if (count >= 5)
            return "River"
        if (count === 4)
            return "Turn"
        return count === 3 ? "Flop" : "Preflop"
    }

    function _isClickable(i) {
        if (!editable)
            return false
        if (clickableIndices === null || clickableIndices === undefined)
            return true
        for (let k = 0; k < clickableIndices.length; ++k) {
            if (clickableIndices[k] === i)
                return true
        }
        return false
    }

    // A river cannot be chosen before a turn.
    function _isDisabled(i) {
        return i === _riverIndex && editable && cards[_turnIndex] === "" && cards[_riverIndex] === ""
    }

    function _isSlotShown(i) {
        if (i < _turnIndex || !compact)
            return true
        return editable || cards[i] !== ""
    }

    function _onSlotClicked(i) {
        if (_isClickable(i))
            cardClicked(i)
    }

    implicitWidth: column.implicitWidth + 2 * horizontalPadding
    implicitHeight: column.implicitHeight

    Component {
        id: slotDelegate

        PlayingCard {
            required property int modelData

            objectName: "slot" + modelData
            anchors.verticalCenter: parent ? parent.verticalCenter : undefined
            visible: root._isSlotShown(modelData)
            theme: root.theme
            rank: root.cards[modelData].charAt(0)
            suit: root.cards[modelData].charAt(1)
            mini: root.compact
            sizeScale: root.cardScale
            hoverable: root._isClickable(modelData)
            disabled: root._isDisabled(modelData)
            onClicked: root._onSlotClicked(modelData)
        }
    }

    Column {
        id: column
        x: root.horizontalPadding
        spacing: 6

        Text {
            objectName: "streetLabel"
            visible: !root.compact
            text: root.streetLabel.toUpperCase()
            color: root._t("textMuted")
            font.pixelSize: root._labelSize
            font.weight: Font.DemiBold
            font.letterSpacing: 1
        }

        Row {
            spacing: root._gap

            Rectangle {
                objectName: "flopTile"
                visible: root.cards[0] !== "" || root.editable
                width: flopRow.implicitWidth + 2 * root._tilePadding
                height: flopRow.implicitHeight + 2 * root._tilePadding
                radius: root._t("radiusMd")
                color: root._t("surface2")
                border.color: root._t("stroke")
                border.width: 1

                Row {
                    id: flopRow
                    anchors.centerIn: parent
                    spacing: root._gap / 2

                    Repeater {
                        model: [0, 1, 2]
                        delegate: slotDelegate
                    }
                }
            }

            Repeater {
                model: [root._turnIndex, root._riverIndex]
                delegate: slotDelegate
            }
        }
    }
}
