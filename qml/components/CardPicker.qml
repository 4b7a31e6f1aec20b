// A grid of all 52 cards, one row per suit, for choosing a board card; cards already in use are locked.
import QtQuick

Item {
    id: root

    property var theme: null
    property var usedCards: []
    property bool showSuitHeaders: true

    // Dark values used when the picker is shown without a theme.
    readonly property var _fallback: ({
        dark: true,
        text: "#F0F6FC",
        textFaint: "#6E7681",
        surface2: "#21262D",
        surface3: "#2D333B",
        stroke: "#30363D",
        suitSpades: "#1F2937",
        suitHearts: "#F85149",
        suitDiamonds: "#58A6FF",
        suitClubs: "#3FB950",
        radiusXs: 4
    })
    readonly property var _suits: ["s", "h", "d", "c"]
    readonly property var _ranks: ["A", "K", "Q", "J", "T", "9", "8", "7", "6", "5", "4", "3", "2"]
    readonly property var _suitSymbols: ({ s: "♠", h: "♥", d: "♦", c: "♣" })
    readonly property var _suitTokens: ({ s: "suitSpades", h: "suitHearts", d: "suitDiamonds", c: "suitClubs" })
    readonly property var _usedSet: _normalizedSet(usedCards)
    readonly property int _tileSize: 28
    readonly property int _tileSpacing: 4
    readonly property int _rankSize: 13
    readonly property int _symbolSize: 15

    signal cardSelected(string card)

    function _t(token) {
        return theme ? theme[token] : _fallback[token]
    }

    // "AH", "ah" and "Ah" all name the same card.
    function _normalize(card) {
        const text = String(card).trim()
        return text.length === 2 ? text[0].toUpperCase() + text[1].toLowerCase() : text
    }

    function _normalizedSet(list) {
        const set = {}
        if (!list)
            return set
        for (let i = 0; i < list.length; ++i)
            set[_normalize(list[i])] = true
        return set
    }

    function _isUsed(card) {
        return _usedSet[_normalize(card)] === true
    }

    // Dark tiles would swallow the near-black spade colour, so spades take the text colour there.
    function _suitColor(suit) {
        if (suit === "s" && _t("dark"))
            return _t("text")
        return theme ? theme.suitColor(suit) : _fallback[_suitTokens[suit]]
    }

    function _pick(card) {
        if (!_isUsed(card))
            cardSelected(card)
    }

    implicitWidth: grid.implicitWidth
    implicitHeight: grid.implicitHeight

    Column {
        id: grid
        spacing: root._tileSpacing

        Repeater {
            model: root._suits

            delegate: Row {
                id: suitRow

                required property string modelData

                spacing: root._tileSpacing

                Rectangle {
                    objectName: "suitHeader_" + suitRow.modelData
                    visible: root.showSuitHeaders
                    width: root._tileSize
                    height: root._tileSize
                    radius: root._t("radiusXs")
                    color: root._t("surface2")
                    border.color: root._t("stroke")
                    border.width: 1

                    Text {
                        anchors.centerIn: parent
                        text: root._suitSymbols[suitRow.modelData]
                        color: root._suitColor(suitRow.modelData)
                        font.pixelSize: root._symbolSize
                    }
                }

                Repeater {
                    model: root._ranks

                    delegate: CardPickerTile {
                        required property string modelData

                        objectName: "tile_" + card
                        card: modelData + suitRow.modelData
                        used: root._isUsed(card)
                        size: root._tileSize
                        radius: root._t("radiusXs")
                        fillColor: used ? root._t("surface3") : root._t("surface2")
                        borderColor: root._t("stroke")
                        textColor: used ? root._t("textFaint") : root._suitColor(suitRow.modelData)
                        fontSize: root._rankSize
                        onPicked: root._pick(card)
                    }
                }
            }
        }
    }
}
