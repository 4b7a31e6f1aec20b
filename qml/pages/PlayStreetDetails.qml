// The details column of one street: its card or cards and the actions taken on it, or "—" if the hand ended
// before the street was dealt.
import QtQuick
import QtQuick.Layouts
import Kelvane

PlayDetailsColumn {
    id: street

    property string cardsText: ""
    property var actions: []

    readonly property real _cardScale: 0.85

    ResultsText {
        objectName: "streetNotReached"
        visible: street.cardsText === ""
        theme: street.theme
        type: street.type
        text: qsTranslate("ResultsPage", "—")
        color: street.theme.textMuted
    }

    PlayMiniCards {
        objectName: "streetCards"
        visible: street.cardsText !== ""
        theme: street.theme
        cardsText: street.cardsText
        cardScale: street._cardScale
    }

    // Kept when empty: it takes the column's free height and holds the lines above at the top.
    PlayDetailsLines {
        objectName: "streetActions"
        theme: street.theme
        type: street.type
        lines: street.actions
        actionSwatches: true
    }
}
