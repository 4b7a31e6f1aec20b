// "Hand Log": the hands played in this process, newest first; a click opens a hand's details under the table.
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Kelvane

ResultsPanel {
    id: panel

    property var page: null

    title: qsTranslate("ResultsPage", "Hand Log")
    badge: list.count > 0 ? qsTranslate("ResultsPage", "%1 hands").arg(list.count) : ""

    ResultsText {
        objectName: "playHandLogEmpty"
        visible: list.count === 0
        Layout.fillWidth: true
        theme: panel.theme
        type: panel.type
        text: qsTranslate("ResultsPage", "No hands played yet.")
        color: panel.theme.textMuted
        wrapMode: Text.Wrap
    }

    ListView {
        id: list

        objectName: "playHandLogList"
        Layout.fillWidth: true
        Layout.fillHeight: true
        clip: true
        spacing: panel.theme.spaceXs
        model: panel.page.playHandLog
        boundsBehavior: Flickable.StopAtBounds
        ScrollBar.vertical: ScrollBar {}

        delegate: PlayHandLogRow {
            objectName: "playLogRow" + index
            width: list.width
            page: panel.page
            theme: panel.theme
            type: panel.type
        }
    }
}
