// One column of the hand details: a small heading and what that column shows under it.
import QtQuick
import QtQuick.Layouts
import Kelvane

ColumnLayout {
    id: column

    property var theme: null
    property var type: null
    property string title: ""
    default property alias content: body.data

    spacing: theme.spaceSm

    ResultsText {
        Layout.fillWidth: true
        theme: column.theme
        type: column.type
        text: column.title.toUpperCase()
        color: column.theme.textMuted
        font.pixelSize: column.type.labelSm
        font.weight: column.type.weightSemibold
        font.letterSpacing: 1
    }

    ColumnLayout {
        id: body

        Layout.fillWidth: true
        Layout.fillHeight: true
        spacing: column.theme.spaceSm
    }
}
