// The board card of the Setup page: five clickable slots and, under a rule, the memory a solve of this spot needs
// against what the machine has free.
import QtQuick
import QtQuick.Layouts
import Kelvane

Card {
    id: card

    property var type: null
    property string boardText: ""
    // May be absent: the memory figures then read "—".
    property var controller: null
    property alias boardDisplay: boardDisplay

    readonly property real _boardCardScale: 1.25
    readonly property int _titleIconSize: 16

    signal slotClicked(int index)

    function _controllerValue(name) {
        return controller && controller[name] !== undefined ? controller[name] : undefined
    }

    function _memoryFigure(name) {
        const text = _controllerValue(name)
        return text === undefined || text === null || String(text) === ""
                ? qsTranslate("ProjectPage", "—") : String(text)
    }

    function memoryText() {
        return qsTranslate("ProjectPage", "Solve RAM: %1 required • %2 available")
            .arg(_memoryFigure("solveRequiredMemoryText")).arg(_memoryFigure("systemAvailableMemoryText"))
    }

    // Only two real figures can say that the solve does not fit.
    function isMemoryShort() {
        const required = Number(_controllerValue("solveRequiredMemoryBytes"))
        const available = Number(_controllerValue("systemAvailableMemoryBytes"))
        if (!isFinite(required) || !isFinite(available) || required <= 0 || available <= 0)
            return false
        return required > available
    }

    ColumnLayout {
        anchors.left: parent.left
        anchors.right: parent.right
        spacing: card.theme.spaceMd

        RowLayout {
            spacing: card.theme.spaceSm

            Icon {
                name: "cards"
                size: card._titleIconSize
                color: card.theme.textMuted
            }

            Text {
                text: qsTranslate("ProjectPage", "Board")
                color: card.theme.text
                font.family: card.theme.fontFamily
                font.pixelSize: card.type.headingSm
                font.weight: card.type.weightSemibold
            }
        }

        BoardDisplay {
            id: boardDisplay
            objectName: "boardDisplay"
            Layout.alignment: Qt.AlignHCenter
            theme: card.theme
            boardText: card.boardText
            editable: true
            cardScale: card._boardCardScale
            onCardClicked: index => card.slotClicked(index)
        }

        Text {
            Layout.fillWidth: true
            text: qsTranslate("ProjectPage", "Click a slot to choose its card.")
            color: card.theme.textFaint
            font.family: card.theme.fontFamily
            font.pixelSize: card.type.labelMd
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
        }

        Rectangle {
            Layout.fillWidth: true
            implicitHeight: 1
            color: card.theme.strokeLight
        }

        Text {
            objectName: "memoryLine"
            Layout.fillWidth: true
            text: card.memoryText()
            color: card.isMemoryShort() ? card.theme.danger : card.theme.textMuted
            font.family: card.theme.fontFamily
            font.pixelSize: card.type.labelLg
            wrapMode: Text.WordWrap
        }
    }
}
