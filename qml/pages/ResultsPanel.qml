// A titled panel of the Results page; what it holds goes under the title.
import QtQuick
import QtQuick.Layouts

Rectangle {
    id: panel

    property var theme: null
    property var type: null
    property string title: ""
    property string badge: ""
    default property alias content: body.data
    // Room for a control at the right of the title, such as a search field.
    property alias headerExtras: extras.data

    implicitHeight: column.implicitHeight + 2 * theme.spaceMd
    implicitWidth: column.implicitWidth + 2 * theme.spaceMd
    color: theme.surface
    radius: theme.radiusMd
    border.color: theme.stroke
    border.width: 1

    ColumnLayout {
        id: column

        anchors.fill: parent
        anchors.margins: panel.theme.spaceMd
        spacing: panel.theme.spaceSm

        RowLayout {
            Layout.fillWidth: true
            spacing: panel.theme.spaceSm

            ResultsText {
                theme: panel.theme
                type: panel.type
                text: panel.title
                font.pixelSize: panel.type.headingSm
                font.weight: panel.type.weightSemibold
            }

            ResultsText {
                visible: text !== ""
                theme: panel.theme
                type: panel.type
                text: panel.badge
                color: panel.theme.textMuted
                font.pixelSize: panel.type.labelMd
            }

            Item {
                Layout.fillWidth: true
            }

            RowLayout {
                id: extras
            }
        }

        ColumnLayout {
            id: body

            Layout.fillWidth: true
            Layout.fillHeight: true
            spacing: panel.theme.spaceSm
        }
    }
}
