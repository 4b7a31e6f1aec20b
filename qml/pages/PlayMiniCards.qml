// A short row of mini cards read from compact card text, such as "Ks7d2c" or "AhKd".
import QtQuick
import Kelvane

Row {
    id: cards

    property var theme: null
    property string cardsText: ""
    property real cardScale: 0.8

    function _pairs(text) {
        const compact = String(text).replace(/\s+/g, "")
        const list = []
        for (let i = 0; i + 1 < compact.length; i += 2)
            list.push(compact.substr(i, 2))
        return list
    }

    spacing: 2

    Repeater {
        model: cards._pairs(cards.cardsText)

        PlayingCard {
            required property string modelData

            theme: cards.theme
            mini: true
            hoverable: false
            sizeScale: cards.cardScale
            rank: modelData.charAt(0)
            suit: modelData.charAt(1)
        }
    }
}
