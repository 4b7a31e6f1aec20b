// The lines of one hand-details column, scrolling when a street had many actions. A line of the form
// "OOP: Bet 75%" gets a swatch in its action's colour.
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Kelvane

ListView {
    id: list

    property var theme: null
    property var type: null
    property var lines: []
    property bool actionSwatches: false

    readonly property int _swatchSize: 8
    readonly property string _actorSeparator: ": "

    function _actionOf(line) {
        const text = String(line)
        const at = text.indexOf(_actorSeparator)
        return at < 0 ? text : text.substring(at + _actorSeparator.length)
    }

    Layout.fillWidth: true
    Layout.fillHeight: true
    clip: true
    spacing: 2
    model: lines
    boundsBehavior: Flickable.StopAtBounds
    ScrollBar.vertical: ScrollBar {}

    delegate: Row {
        required property var modelData

        width: list.width
        spacing: list.theme.spaceXs

        Rectangle {
            visible: list.actionSwatches
            anchors.verticalCenter: parent.verticalCenter
            width: list._swatchSize
            height: list._swatchSize
            radius: 2
            color: list.theme.actionColor(list._actionOf(modelData))
        }

        ResultsText {
            width: parent.width - (list.actionSwatches ? list._swatchSize + parent.spacing : 0)
            theme: list.theme
            type: list.type
            text: String(modelData)
            font.pixelSize: list.type.labelMd
        }
    }
}
