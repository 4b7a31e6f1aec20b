// "Hand Details": the acting player's combos at the current node, filtered by the matrix, the bucket and the
// search field, each with its EV per action and its strategy.
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Kelvane
import "ListRows.js" as ListRows

ResultsPanel {
    id: panel

    property var page: null

    readonly property int _searchWidth: 220

    function _emptyText() {
        if (page.currentHandCombos.length === 0)
            return qsTranslate("ResultsPage", "No hand combos to display for this node.")
        return page.visibleHandCombos.length === 0 ? qsTranslate("ResultsPage", "No combos match the current filters.")
                                                   : ""
    }

    title: qsTranslate("ResultsPage", "Hand Details")
    headerExtras: [
        ThemedTextField {
            objectName: "handSearchField"
            Layout.preferredWidth: panel._searchWidth
            theme: panel.theme
            placeholderText: qsTranslate("ResultsPage", "Search (JJ, 56s, JcJd, ...)")
            text: panel.page.handSearchText
            onTextEdited: panel.page.handSearchText = text
        }
    ]

    Component.onCompleted: ListRows.resize(rows, page.visibleHandCombos.length)

    RowLayout {
        objectName: "handFilterRow"
        visible: panel.page.selectedHandClass !== ""
        Layout.fillWidth: true

        ResultsText {
            Layout.fillWidth: true
            theme: panel.theme
            type: panel.type
            text: qsTranslate("ResultsPage", "Filter: %1").arg(panel.page.selectedHandClass)
            color: panel.theme.accent
            font.weight: panel.type.weightMedium
        }

        SecondaryButton {
            objectName: "clearHandFilterButton"
            theme: panel.theme
            text: qsTranslate("ResultsPage", "Clear")
            onClicked: panel.page.selectedHandClass = ""
        }
    }

    ResultsText {
        objectName: "handDetailsEmpty"
        visible: text !== ""
        Layout.fillWidth: true
        theme: panel.theme
        type: panel.type
        text: panel._emptyText()
        color: panel.theme.textMuted
        wrapMode: Text.Wrap
    }

    ListModel {
        id: rows
    }

    Connections {
        target: panel.page

        function onVisibleHandCombosChanged() {
            ListRows.resize(rows, panel.page.visibleHandCombos.length)
        }

        // The rows outlive the node, but a new node's list starts at its top.
        function onCurrentNodeIndexChanged() {
            list.positionViewAtBeginning()
        }
    }

    ListView {
        id: list

        objectName: "handComboList"
        Layout.fillWidth: true
        Layout.fillHeight: true
        clip: true
        spacing: panel.theme.spaceXs
        // Rows that follow the list's length, so that a node change refills them.
        model: rows
        reuseItems: true
        boundsBehavior: Flickable.StopAtBounds
        ScrollBar.vertical: ScrollBar {}

        delegate: HandComboRow {
            required property int index

            width: list.width
            page: panel.page
            theme: panel.theme
            type: panel.type
            combo: ListRows.entryAt(panel.page.visibleHandCombos, index, ({}))
        }
    }
}
