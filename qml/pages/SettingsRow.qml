// One setting: its name and a line of explanation on the left, its controls on the right.
import QtQuick
import QtQuick.Layouts

Rectangle {
    id: row

    property var theme: null
    property var type: null
    property string title: ""
    property string description: ""
    // The controls, laid out in a row at the right edge.
    default property alias controls: controlRow.data

    readonly property int _textGap: 2

    implicitHeight: Math.max(textColumn.implicitHeight, controlRow.implicitHeight) + 2 * theme.spaceMd
    implicitWidth: textColumn.implicitWidth + controlRow.implicitWidth + 2 * theme.spaceLg + theme.spaceXl
    radius: theme.radiusSm
    color: theme.surface2

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: row.theme.spaceLg
        anchors.rightMargin: row.theme.spaceLg
        spacing: row.theme.spaceXl

        ColumnLayout {
            id: textColumn

            Layout.fillWidth: true
            Layout.alignment: Qt.AlignVCenter
            spacing: row._textGap

            Text {
                objectName: "rowTitle"
                Layout.fillWidth: true
                text: row.title
                color: row.theme.text
                elide: Text.ElideRight
                font.family: row.theme.fontFamily
                font.pixelSize: row.type.bodyMd
                font.weight: row.type.weightSemibold
            }

            Text {
                objectName: "rowDescription"
                Layout.fillWidth: true
                text: row.description
                color: row.theme.textMuted
                wrapMode: Text.WordWrap
                font.family: row.theme.fontFamily
                font.pixelSize: row.type.labelMd
            }
        }

        RowLayout {
            id: controlRow

            Layout.alignment: Qt.AlignVCenter
            spacing: row.theme.spaceSm
        }
    }
}
