// The drawn table of play mode: OOP at the top, IP at the bottom, the board and the pot in the middle. Before a
// session the role buttons stand in the middle instead; at the end of a hand "Another hand" stands left of the board.
import QtQuick
import Kelvane

Rectangle {
    id: table

    property var page: null
    property var theme: null
    property var type: null

    readonly property string _tableSource: "qrc:/Kelvane/qml/assets/poker_table_placeholder.svg"
    readonly property real _boardScale: 1.05
    readonly property real _plateAlpha: 0.55
    readonly property real _pillAlpha: 0.92
    // Seat and toast positions as shares of the drawn table's height, so that they follow the artwork.
    readonly property real _seatInset: 0.01
    readonly property real _toastTop: 0.25
    readonly property int _turnIndex: 3
    readonly property int _riverIndex: 4
    readonly property bool _started: page.playSessionStarted
    readonly property bool _canChangeTurn: _started && page.playCanChangeRunout("turn")
    readonly property bool _canChangeRiver: _started && page.playCanChangeRunout("river")

    function _clickableBoardIndices() {
        const indices = []
        if (_canChangeTurn)
            indices.push(_turnIndex)
        if (_canChangeRiver)
            indices.push(_riverIndex)
        return indices
    }

    function _onBoardCardClicked(index) {
        if (index === _turnIndex)
            page.changePlayRunout("turn")
        else if (index === _riverIndex)
            page.changePlayRunout("river")
    }

    color: theme.surface
    radius: theme.radiusMd
    border.color: theme.stroke
    border.width: 1
    clip: true

    Image {
        id: artwork

        objectName: "playTableImage"
        anchors.fill: parent
        anchors.margins: table.theme.spaceSm
        source: table._tableSource
        sourceSize: Qt.size(width, height)
        fillMode: Image.PreserveAspectFit
        smooth: true
    }

    // The area the artwork really covers; everything on the table is placed in it.
    Item {
        id: felt

        objectName: "playFelt"
        x: artwork.x + (artwork.width - artwork.paintedWidth) / 2
        y: artwork.y + (artwork.height - artwork.paintedHeight) / 2
        width: artwork.paintedWidth
        height: artwork.paintedHeight

        PlaySeat {
            id: oopSeat

            objectName: "playSeatOop"
            width: felt.width
            y: felt.height * table._seatInset
            page: table.page
            theme: table.theme
            type: table.type
            seatName: "OOP"
            card1: table.page.oopCard1
            card2: table.page.oopCard2
            pillsBelow: true
            onActionChosen: index => table.page.choosePlayAction(index)
        }

        PlaySeat {
            id: ipSeat

            objectName: "playSeatIp"
            width: felt.width
            y: felt.height * (1 - table._seatInset) - height
            page: table.page
            theme: table.theme
            type: table.type
            seatName: "IP"
            card1: table.page.ipCard1
            card2: table.page.ipCard2
            pillsBelow: false
            dealer: true
            onActionChosen: index => table.page.choosePlayAction(index)
        }

        Chip {
            objectName: "drillContext"
            visible: text !== ""
            anchors.horizontalCenter: parent.horizontalCenter
            anchors.bottom: ipSeat.top
            anchors.bottomMargin: table.theme.spaceSm
            theme: table.theme
            text: table.page.playDrillContextText()
            tint: table.theme.withOpacity(table.theme.surface, table._pillAlpha)
            textColor: table.theme.textMuted
        }

        Row {
            objectName: "playRoleButtons"
            visible: !table._started
            anchors.centerIn: parent
            spacing: table.theme.spaceSm

            PrimaryButton {
                objectName: "playRoleOop"
                theme: table.theme
                text: qsTranslate("ResultsPage", "Play as OOP")
                onClicked: table.page.startPlaySession("OOP")
            }

            PrimaryButton {
                objectName: "playRoleBoth"
                theme: table.theme
                text: qsTranslate("ResultsPage", "Play as both")
                onClicked: table.page.startPlaySession("BOTH")
            }

            PrimaryButton {
                objectName: "playRoleIp"
                theme: table.theme
                text: qsTranslate("ResultsPage", "Play as IP")
                onClicked: table.page.startPlaySession("IP")
            }
        }

        // A darker or lighter tray under the board keeps its labels readable on the felt in both themes.
        Rectangle {
            id: boardPlate

            objectName: "playBoardPlate"
            visible: table._started
            anchors.centerIn: parent
            width: boardColumn.implicitWidth + 2 * table.theme.spaceMd
            height: boardColumn.implicitHeight + 2 * table.theme.spaceSm
            radius: table.theme.radiusLg
            color: table.theme.withOpacity(table.theme.bg1, table._plateAlpha)

            Column {
                id: boardColumn

                anchors.centerIn: parent
                spacing: table.theme.spaceXs

                BoardDisplay {
                    objectName: "playBoard"
                    anchors.horizontalCenter: parent.horizontalCenter
                    theme: table.theme
                    boardText: table.page.playBoardText
                    cardScale: table._boardScale
                    horizontalPadding: 0
                    editable: table._canChangeTurn || table._canChangeRiver
                    clickableIndices: table._clickableBoardIndices()
                    onCardClicked: index => table._onBoardCardClicked(index)
                }

                Chip {
                    objectName: "playPotPill"
                    anchors.horizontalCenter: parent.horizontalCenter
                    theme: table.theme
                    text: table.page.playPotText()
                    tint: table.theme.withOpacity(table.theme.surface, table._pillAlpha)
                    stroke: table.theme.gold
                }

                Text {
                    objectName: "playRunoutHint"
                    visible: table._canChangeTurn || table._canChangeRiver
                    anchors.horizontalCenter: parent.horizontalCenter
                    text: qsTranslate("ResultsPage", "Click Turn/River to change")
                    color: table.theme.text
                    font.family: table.theme.fontFamily
                    font.pixelSize: table.type.labelSm
                }
            }
        }

        PrimaryButton {
            objectName: "anotherHandButton"
            visible: table._started && table.page.playHandComplete
            anchors.right: boardPlate.left
            anchors.rightMargin: table.theme.spaceLg
            anchors.verticalCenter: boardPlate.verticalCenter
            theme: table.theme
            text: qsTranslate("ResultsPage", "Another hand")
            onClicked: table.page.anotherHand()
        }

        Rectangle {
            objectName: "drillFeedback"
            visible: table.page.playDrillFeedbackText !== ""
            anchors.horizontalCenter: parent.horizontalCenter
            y: felt.height * table._toastTop
            width: toastText.implicitWidth + 2 * table.theme.spaceLg
            height: toastText.implicitHeight + 2 * table.theme.spaceSm
            radius: height / 2
            color: table.page.playDrillFeedbackWrong ? table.theme.danger : table.theme.success

            Text {
                id: toastText

                anchors.centerIn: parent
                text: table.page.playDrillFeedbackText
                color: table.theme.textInverse
                font.family: table.theme.fontFamily
                font.pixelSize: table.type.bodyMd
                font.weight: table.type.weightBold
            }
        }
    }
}
