// The Solve Activity card: the year's grid of solves under its heading.
import QtQuick
import QtQuick.Layouts
import Kelvane

Card {
    id: card

    property var type: null
    property var days: []

    readonly property alias grid: activityGrid

    ColumnLayout {
        anchors.left: parent.left
        anchors.right: parent.right
        spacing: card.theme.spaceMd

        RowLayout {
            Layout.fillWidth: true
            spacing: card.theme.spaceSm

            HomeCardTitle {
                Layout.fillWidth: true
                theme: card.theme
                type: card.type
                iconName: "calendar"
                text: qsTranslate("HomePage", "Solve Activity")
            }

            Text {
                text: qsTranslate("HomePage", "Last 52 weeks (incl. upcoming days)")
                color: card.theme.textMuted
                font.family: card.theme.fontFamily
                font.pixelSize: card.type.labelMd
            }
        }

        HomeActivityGrid {
            id: activityGrid

            objectName: "activityGrid"
            Layout.fillWidth: true
            Layout.preferredHeight: implicitHeight
            theme: card.theme
            type: card.type
            days: card.days
        }
    }
}
