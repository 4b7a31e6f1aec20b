// One open-source component in use: its name, what it does here, and its licence as a chip.
import QtQuick
import QtQuick.Layouts
import Kelvane

Rectangle {
    id: row

    property var theme: null
    property var type: null
    property string name: ""
    property string note: ""
    property string licence: ""

    readonly property real _chipTintAlpha: 0.12
    readonly property int _textGap: 2

    implicitHeight: Math.max(textColumn.implicitHeight, licenceChip.implicitHeight) + 2 * theme.spaceMd
    radius: theme.radiusSm
    color: theme.surface2

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: row.theme.spaceLg
        anchors.rightMargin: row.theme.spaceLg
        spacing: row.theme.spaceMd

        ColumnLayout {
            id: textColumn

            Layout.fillWidth: true
            Layout.alignment: Qt.AlignVCenter
            spacing: row._textGap

            Text {
                objectName: "licenseName"
                Layout.fillWidth: true
                text: row.name
                color: row.theme.text
                elide: Text.ElideRight
                font.family: row.theme.fontFamily
                font.pixelSize: row.type.bodyMd
                font.weight: row.type.weightSemibold
            }

            Text {
                objectName: "licenseNote"
                Layout.fillWidth: true
                text: row.note
                color: row.theme.textMuted
                elide: Text.ElideRight
                font.family: row.theme.fontFamily
                font.pixelSize: row.type.labelMd
            }
        }

        Chip {
            id: licenceChip

            objectName: "licenseChip"
            theme: row.theme
            text: row.licence
            tint: row.theme.withOpacity(row.theme.info, row._chipTintAlpha)
            stroke: row.theme.info
            textColor: row.theme.info
        }
    }
}
