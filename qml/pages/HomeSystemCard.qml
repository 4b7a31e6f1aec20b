// The System card: the engine's name, the threads it may use and the machine's memory.
import QtQuick
import QtQuick.Layouts
import Kelvane

Card {
    id: card

    property var type: null
    // Read for its system figures only; absent figures show a dash.
    property var controller: null

    readonly property string _dash: qsTranslate("HomePage", "—")

    function _present(value) {
        return value !== undefined && value !== null && String(value).trim() !== ""
    }

    function _read(name) {
        return controller && _present(controller[name]) ? controller[name] : undefined
    }

    function _threadsText() {
        const threads = Number(_read("systemThreadCount"))
        return Number.isFinite(threads) && threads > 0 ? qsTranslate("HomePage", "%1 available").arg(threads) : _dash
    }

    function _memoryText() {
        const total = _read("systemMemoryText")
        const free = _read("systemAvailableMemoryText")
        if (total === undefined && free === undefined)
            return _dash
        return qsTranslate("HomePage", "%1 (%2 free)").arg(total === undefined ? _dash : total)
                                                      .arg(free === undefined ? _dash : free)
    }

    function _rows() {
        return [
            {key: "engine", label: qsTranslate("HomePage", "Engine"), value: qsTranslate("HomePage", "Orvanthis Core")},
            {key: "threads", label: qsTranslate("HomePage", "Threads"), value: _threadsText()},
            {key: "memory", label: qsTranslate("HomePage", "Memory"), value: _memoryText()}
        ]
    }

    ColumnLayout {
        anchors.left: parent.left
        anchors.right: parent.right
        spacing: card.theme.spaceMd

        HomeCardTitle {
            theme: card.theme
            type: card.type
            iconName: "monitor"
            text: qsTranslate("HomePage", "System")
        }

        Repeater {
            model: card._rows()

            delegate: Rectangle {
                id: systemRow

                required property var modelData

                objectName: "system_" + modelData.key
                Layout.fillWidth: true
                implicitHeight: valueText.implicitHeight + 2 * card.theme.spaceMd
                radius: card.theme.radiusSm
                color: card.theme.surface2

                Text {
                    anchors.left: parent.left
                    anchors.leftMargin: card.theme.spaceMd
                    anchors.verticalCenter: parent.verticalCenter
                    text: systemRow.modelData.label
                    color: card.theme.textMuted
                    font.family: card.theme.fontFamily
                    font.pixelSize: card.type.bodySm
                }

                Text {
                    id: valueText

                    objectName: "value"
                    anchors.right: parent.right
                    anchors.rightMargin: card.theme.spaceMd
                    anchors.verticalCenter: parent.verticalCenter
                    text: systemRow.modelData.value
                    color: card.theme.text
                    font.family: card.theme.fontFamily
                    font.pixelSize: card.type.bodySm
                    font.weight: card.type.weightSemibold
                }
            }
        }
    }
}
