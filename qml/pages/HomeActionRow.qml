// One of the Quick Actions: icon, title and a line of description, with an arrow that says it leads on.
import QtQuick
import QtQuick.Layouts
import Kelvane

Rectangle {
    id: row

    property var theme: null
    property var type: null
    property string iconName: ""
    property string title: ""
    property string description: ""

    readonly property int _rowHeight: 56
    readonly property int _iconTileSize: 34
    readonly property int _iconSize: 18
    readonly property real _iconTileAlpha: 0.15

    signal activated()

    function _fill() {
        if (area.pressed)
            return theme.surface3
        return area.containsMouse ? theme.surfaceHover : theme.surface2
    }

    implicitHeight: _rowHeight
    radius: theme.radiusSm
    color: _fill()
    border.color: area.containsMouse ? theme.accent : theme.stroke
    border.width: 1

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: row.theme.spaceMd
        anchors.rightMargin: row.theme.spaceLg
        spacing: row.theme.spaceMd

        Rectangle {
            Layout.preferredWidth: row._iconTileSize
            Layout.preferredHeight: row._iconTileSize
            radius: row.theme.radiusSm
            color: row.theme.withOpacity(row.theme.accent, row._iconTileAlpha)

            Icon {
                anchors.centerIn: parent
                theme: row.theme
                name: row.iconName
                size: row._iconSize
                color: row.theme.accent
            }
        }

        ColumnLayout {
            Layout.fillWidth: true
            spacing: 2

            Text {
                Layout.fillWidth: true
                text: row.title
                color: row.theme.text
                elide: Text.ElideRight
                font.family: row.theme.fontFamily
                font.pixelSize: row.type.bodyMd
                font.weight: row.type.weightSemibold
            }

            Text {
                Layout.fillWidth: true
                text: row.description
                color: row.theme.textMuted
                elide: Text.ElideRight
                font.family: row.theme.fontFamily
                font.pixelSize: row.type.labelMd
            }
        }

        Text {
            text: qsTranslate("HomePage", "→")
            color: area.containsMouse ? row.theme.accent : row.theme.textMuted
            font.family: row.theme.fontFamily
            font.pixelSize: row.type.headingSm
        }
    }

    MouseArea {
        id: area

        anchors.fill: parent
        hoverEnabled: true
        cursorShape: Qt.PointingHandCursor
        onClicked: row.activated()
    }
}
