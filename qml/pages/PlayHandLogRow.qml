// One finished hand in the hand log: its board, the hero's cards and what the hand cost, green when it was played
// perfectly and red when it ended on a mistake.
import QtQuick
import QtQuick.Layouts
import Kelvane

Rectangle {
    id: row

    property var page: null
    property var theme: null
    property var type: null
    // The log's roles, as a list delegate receives them.
    required property int index
    required property string board
    required property bool isMistake
    required property string time

    readonly property real _selectedAlpha: 0.18
    readonly property real _plainAlpha: 0.12
    readonly property real _cardScale: 0.7
    readonly property bool _selected: index === page.playSelectedLogIndex
    readonly property color _tone: isMistake ? theme.danger : theme.success

    implicitHeight: content.implicitHeight + 2 * theme.spaceSm
    radius: theme.radiusSm
    color: theme.withOpacity(_tone, _selected ? _selectedAlpha : _plainAlpha)
    border.color: _selected ? _tone : "transparent"
    border.width: 1

    ColumnLayout {
        id: content

        anchors.fill: parent
        anchors.margins: row.theme.spaceSm
        spacing: row.theme.spaceXs

        RowLayout {
            Layout.fillWidth: true
            spacing: row.theme.spaceSm

            ResultsText {
                objectName: "logBoard"
                theme: row.theme
                type: row.type
                text: row.board
                font.family: row.theme.fontMono
                font.pixelSize: row.type.labelMd
            }

            ResultsText {
                theme: row.theme
                type: row.type
                text: qsTranslate("ResultsPage", "|")
                color: row.theme.textFaint
            }

            PlayMiniCards {
                objectName: "logHeroCards"
                theme: row.theme
                cardsText: row.page.playLogHeroCards(row.index)
                cardScale: row._cardScale
            }

            Item {
                Layout.fillWidth: true
            }

            ResultsText {
                theme: row.theme
                type: row.type
                text: row.time
                color: row.theme.textMuted
                font.pixelSize: row.type.labelSm
            }
        }

        ResultsText {
            objectName: "logFooter"
            Layout.fillWidth: true
            theme: row.theme
            type: row.type
            text: row.page.playLogFooterText(row.index)
            color: row._tone
            font.pixelSize: row.type.labelMd
            font.weight: row.type.weightSemibold
        }
    }

    MouseArea {
        anchors.fill: parent
        cursorShape: Qt.PointingHandCursor
        onClicked: row.page.selectPlayLog(row.index)
    }
}
