// Photographs the Results page's two building blocks, the action bar and the tree node, in a row of typical and
// edge states, in the dark and the light theme, one PNG per section and theme, into the folder that
// KELVANE_SCREENSHOT_DIR names. Run on its own:
// kelvane_qml_tests -input tests/qml/screenshots/results_components_shots.qml
import QtQuick
import QtTest
import Kelvane
import "../gallery"

Item {
    id: root

    width: 1300
    height: 1100

    TestCase {
        id: shooter

        readonly property var sectionNames: ["action_bars", "tree_nodes"]

        name: "ResultsComponentsShots"
        when: windowShown

        Theme { id: darkTheme }
        Theme { id: lightTheme; dark: false }

        Component {
            id: sheetComponent

            Rectangle {
                id: sheet

                property var theme: null
                readonly property int barWidth: 560
                readonly property int nodeWidth: 290
                readonly property var withStats: [
                    {name: "Check", actionType: "check", frequency: 0.42, combos: 120, equity: 0.4567, ev: 3.21},
                    {name: "Bet 75%", actionType: "bet", frequency: 0.38, combos: 108.5, equity: 0.52, ev: 4.1},
                    {name: "Raise 250%", actionType: "raise", frequency: 0.2, combos: 57.0000004, equity: 0.61,
                     ev: -1.256}
                ]
                // What the page hands over for a node with many sizes: sized bets and raises take the palette by
                // their rank within the node.
                readonly property var sixSizes: [
                    {name: "Check", actionType: "check", frequency: 0.22, combos: 60, equity: 0.41, ev: 1.2},
                    {name: "Bet 33%", actionType: "bet", frequency: 0.18, combos: 49.5, equity: 0.47, ev: 1.8,
                     color: theme.betRankColors[0]},
                    {name: "Bet 75%", actionType: "bet", frequency: 0.2, combos: 55, equity: 0.52, ev: 2.4,
                     color: theme.betRankColors[1]},
                    {name: "Bet 150%", actionType: "bet", frequency: 0.15, combos: 41.25, equity: 0.58, ev: 3.05,
                     color: theme.betRankColors[2]},
                    {name: "Raise 250%", actionType: "raise", frequency: 0.1, combos: 27.5, equity: 0.63, ev: 3.6,
                     color: theme.raiseRankColors[0]},
                    {name: "All-in", actionType: "allin", frequency: 0.15, combos: 41, equity: 0.66, ev: 4.4}
                ]
                readonly property var chanceOnly: [{name: "Random turn card", actionType: "chance", frequency: 1.0,
                                                    combos: NaN, equity: NaN, ev: NaN}]

                function actionsWith(frequencies) {
                    const names = ["Fold", "Call", "Raise 250%"]
                    const types = ["fold", "call", "raise"]
                    const list = []
                    for (let i = 0; i < frequencies.length; ++i)
                        list.push({name: names[i], actionType: types[i], frequency: frequencies[i], combos: 10,
                                   equity: 0.5, ev: 0})
                    return list
                }

                anchors.fill: parent
                color: theme.bg0

                Column {
                    x: 16
                    y: 16
                    spacing: 16

                    GallerySection {
                        objectName: "action_bars"
                        theme: sheet.theme

                        Column {
                            spacing: 10

                            Text { text: "Three actions with labels"; color: sheet.theme.textMuted }
                            ActionBar { width: sheet.barWidth; theme: sheet.theme; actions: sheet.withStats }

                            Text { text: "The same without labels"; color: sheet.theme.textMuted }
                            ActionBar {
                                width: sheet.barWidth
                                theme: sheet.theme
                                showLabels: false
                                actions: sheet.withStats
                            }

                            Text { text: "A 0.001 sliver first, then last"; color: sheet.theme.textMuted }
                            ActionBar {
                                width: sheet.barWidth
                                theme: sheet.theme
                                showLabels: false
                                actions: sheet.actionsWith([0.001, 0.6, 0.399])
                            }
                            ActionBar {
                                width: sheet.barWidth
                                theme: sheet.theme
                                showLabels: false
                                actions: sheet.actionsWith([0.5, 0.499, 0.001])
                            }

                            Text { text: "One segment: a chance node"; color: sheet.theme.textMuted }
                            ActionBar { width: sheet.barWidth; theme: sheet.theme; actions: sheet.chanceOnly }

                            Text { text: "Six actions, sized bet colours"; color: sheet.theme.textMuted }
                            ActionBar { width: sheet.barWidth; theme: sheet.theme; actions: sheet.sixSizes }
                            ActionBar { width: 1200; theme: sheet.theme; actions: sheet.sixSizes }

                            Text { text: "Interactive, second selected"; color: sheet.theme.textMuted }
                            ActionBar {
                                width: sheet.barWidth
                                theme: sheet.theme
                                interactive: true
                                selectedAction: 1
                                actions: sheet.withStats
                            }

                            Text { text: "Thin 8 px, narrow 120 px, empty"; color: sheet.theme.textMuted }
                            Row {
                                spacing: 16

                                ActionBar {
                                    width: 200
                                    height: 8
                                    theme: sheet.theme
                                    showLabels: false
                                    actions: sheet.withStats
                                }
                                ActionBar { width: 120; theme: sheet.theme; showLabels: false; actions: sheet.sixSizes }
                                ActionBar { width: 120; theme: sheet.theme; showLabels: false; actions: [] }
                            }
                        }
                    }

                    GallerySection {
                        objectName: "tree_nodes"
                        theme: sheet.theme

                        Column {
                            spacing: 8

                            TreeNode {
                                width: sheet.nodeWidth
                                theme: sheet.theme
                                player: "OOP"
                                action: "Check"
                                actionType: "check"
                                pot: 180
                                frequency: 0.42
                                ev: 12.5
                                hasChildren: true
                            }
                            TreeNode {
                                width: sheet.nodeWidth
                                theme: sheet.theme
                                player: "OOP"
                                action: "Bet 75%"
                                actionType: "bet"
                                pot: 315
                                frequency: 0.38
                                ev: -3.256
                                hasChildren: true
                                expanded: true
                                selected: true
                            }
                            TreeNode {
                                width: sheet.nodeWidth
                                theme: sheet.theme
                                player: "IP"
                                action: "Raise 250%"
                                actionType: "raise"
                                pot: 1012.5
                                frequency: 0.2
                            }
                            TreeNode {
                                width: sheet.nodeWidth
                                theme: sheet.theme
                                player: "IP"
                                action: "Fold"
                                actionType: "fold"
                                pot: 180
                                frequency: 0.004
                            }
                            TreeNode {
                                objectName: "hoveredNode"
                                width: sheet.nodeWidth
                                theme: sheet.theme
                                player: "IP"
                                action: "Call"
                                actionType: "call"
                                pot: 450
                                frequency: 0.6
                                ev: 0.5
                                hasChildren: true
                            }
                        }

                        Column {
                            spacing: 8

                            TreeNode {
                                width: sheet.nodeWidth
                                theme: sheet.theme
                                nodeType: "chance"
                                player: "Deal Turn"
                                action: "Ks"
                                pot: 630
                                selected: true
                            }
                            TreeNode {
                                width: sheet.nodeWidth
                                theme: sheet.theme
                                nodeType: "chance"
                                action: "7h"
                                pot: 630
                            }
                            TreeNode {
                                width: sheet.nodeWidth
                                theme: sheet.theme
                                nodeType: "terminal"
                                player: "IP"
                                action: "Call"
                                actionType: "call"
                                pot: 1260
                                frequency: 0.55
                            }
                            TreeNode {
                                theme: sheet.theme
                                player: "OOP"
                                action: "Bet 150%"
                                actionType: "bet"
                                pot: 180
                                frequency: 0.15
                                ev: 7.25
                                hasChildren: true
                            }
                            TreeNode { theme: sheet.theme; player: "OOP" }
                        }
                    }
                }
            }
        }

        function save(item, path) {
            let saved = false
            verify(item.grabToImage(result => { saved = result.saveToFile(path) }))
            tryVerify(() => saved, 5000, "could not write " + path)
            console.info("wrote " + path)
        }

        function test_photograph_data() {
            return [{tag: "dark", theme: darkTheme}, {tag: "light", theme: lightTheme}]
        }

        function test_photograph(data) {
            verify(screenshotDirectory !== "", "KELVANE_SCREENSHOT_DIR names the output folder")
            const sheet = createTemporaryObject(sheetComponent, root, {theme: data.theme})
            const hovered = findChild(sheet, "hoveredNode")
            mouseMove(hovered, hovered.width / 2, hovered.height / 2)
            tryCompare(hovered, "scale", 1.02)
            waitForRendering(sheet)
            for (const name of sectionNames)
                save(findChild(sheet, name), screenshotDirectory + "/results_components_" + data.tag + "_" + name
                     + ".png")
        }
    }
}
