// A stand-in for the Results page as the play views read it: the play state as plain properties that a test
// sets, the derived texts worked out from them, and a record of every call the views' buttons make.
import QtQuick

Item {
    id: page

    property bool playMode: true
    property string playRole: ""
    property bool playSessionStarted: false
    property string playBoardText: ""
    property bool playAwaitingUserAction: false
    property int playNodeIndex: -1
    property bool playHandComplete: false
    property string playActionLine: ""
    property string oopCard1: ""
    property string oopCard2: ""
    property string ipCard1: ""
    property string ipCard2: ""
    property string playLastActionActor: ""
    property string playLastActionText: ""
    property bool playDrillMode: false
    property string playDrillFeedbackText: ""
    property bool playDrillFeedbackWrong: false
    property int playSelectedLogIndex: -1
    property var playSelectedLog: ({})
    property var playSelectedDetails: ({})

    // What the page would work out from its tree, set directly by a test.
    property string actingSeat: ""
    property var actionNames: []
    property real pot: NaN
    property var stacks: ({OOP: NaN, IP: NaN})
    property bool canChangeTurn: false
    property bool canChangeRiver: false
    property bool drillAvailable: false
    property string drillContextText: ""
    // The details of each log row, as the page would build them from the entry.
    property var detailsByRow: [
        {flopBoard: "Ks7d2c", turnCard: "Qh", riverCard: "8s",
         flopActions: ["OOP: Check", "IP: Bet 75%", "OOP: Call"], turnActions: ["OOP: Check", "IP: Check"],
         riverActions: ["OOP: Bet 50%", "IP: Call"], oop: "AhKh", ip: "QsQc",
         summaryLines: ["Winner: OOP", "Won: 41", "Rake: 0"]},
        {flopBoard: "Ks7d2c", turnCard: "Jd", riverCard: "",
         flopActions: ["OOP: Check", "IP: Bet 33%", "OOP: Call"], turnActions: ["OOP: Bet 75%"], riverActions: [],
         oop: "9s9h", ip: "AcKc",
         summaryLines: ["Winner: —", "Won: —", "Rake: —", "EV lost: 0.512", "Incorrect: Bet 75%", "Correct: Check"]},
        {flopBoard: "Ks7d2c", turnCard: "", riverCard: "",
         flopActions: ["OOP: Bet 33%", "IP: Raise 250%", "OOP: Fold"], turnActions: [], riverActions: [],
         oop: "Td9d", ip: "Ac7c", summaryLines: ["Winner: IP", "Won: 10", "Rake: 0"]}
    ]

    // Calls made by the views.
    property var startedRoles: []
    property var chosenActions: []
    property var runoutChanges: []
    property var selectedRows: []
    property int anotherHandCalls: 0
    property int startDrillCalls: 0
    property int stopDrillCalls: 0

    property ListModel playHandLog: ListModel {}
    // Three finished hands, newest first: a clean showdown, a mistake on the turn, a fold on the flop played as IP.
    readonly property var sampleHands: [
        _entry({time: "14:32:10", board: "Ks7d2cQh8s", role: "OOP", oop: "AhKh", ip: "QsQc",
                line: "OOP: Check → IP: Bet 75% → OOP: Call → Chance: Qh → OOP: Check → IP: Check → Chance: 8s"
                      + " → OOP: Bet 50% → IP: Call", endedReason: "terminal", pot: 82, investedOop: 41,
                investedIp: 41}),
        _entry({time: "14:31:02", board: "Ks7d2cJd", role: "OOP", oop: "9s9h", ip: "AcKc",
                line: "OOP: Check → IP: Bet 33% → OOP: Call → Chance: Jd → OOP: Bet 75%",
                endedReason: "suboptimal", mistakeActor: "OOP", mistakeAction: "Bet 75%", correctAction: "Check",
                chosenActionIndex: 1, correctActionIndex: 0, evLoss: 0.512, bestEv: 4.1, chosenEv: 3.588, pot: 20,
                investedOop: 10, investedIp: 10}),
        _entry({time: "14:30:44", board: "Ks7d2c", role: "IP", oop: "Td9d", ip: "Ac7c",
                line: "OOP: Bet 33% → IP: Raise 250% → OOP: Fold", endedReason: "terminal", pot: 20,
                investedOop: 8.3, investedIp: 26.8})
    ]

    readonly property int _evDecimals: 3

    // Every role present, as the page guarantees.
    function _entry(fields) {
        const entry = Object.assign({time: "", board: "", role: "", oop: "", ip: "", line: "", endedReason: "",
                                     mistakeActor: "", mistakeAction: "", correctAction: "", chosenActionIndex: -1,
                                     correctActionIndex: -1, evLoss: NaN, bestEv: NaN, chosenEv: NaN, pot: 0,
                                     investedOop: 0, investedIp: 0}, fields)
        entry.isMistake = isFinite(entry.evLoss) && entry.evLoss > 0
        return entry
    }


    function startPlaySession(role) {
        startedRoles = startedRoles.concat([role])
        playRole = role
        playSessionStarted = true
    }

    function choosePlayAction(index) {
        chosenActions = chosenActions.concat([index])
        playAwaitingUserAction = false
    }

    function anotherHand() {
        ++anotherHandCalls
        playHandComplete = false
    }

    function changePlayRunout(deal) {
        runoutChanges = runoutChanges.concat([deal])
    }

    function startDrillSpot() {
        ++startDrillCalls
        playDrillMode = true
    }

    function stopDrillSpot() {
        ++stopDrillCalls
        playDrillMode = false
    }

    function selectPlayLog(index) {
        selectedRows = selectedRows.concat([index])
        playSelectedLogIndex = index
        playSelectedLog = index >= 0 ? playHandLog.get(index) : ({})
        playSelectedDetails = index >= 0 && index < detailsByRow.length ? detailsByRow[index] : ({})
    }

    function playActingSeat() {
        return actingSeat
    }

    function playActionNames() {
        return actionNames
    }

    function playSeatIsHero(seat) {
        return playRole === "BOTH" || playRole === seat
    }

    function playPotText() {
        return isFinite(pot) ? "Pot: " + pot.toFixed(0) : "Pot: —"
    }

    function playStackText(seat) {
        const stack = stacks[seat]
        return isFinite(stack) ? "Stack: " + Math.max(0, stack).toFixed(0) : "Stack: —"
    }

    function playCanChangeRunout(deal) {
        return deal === "turn" ? canChangeTurn : canChangeRiver
    }

    function playDrillAvailable() {
        return drillAvailable
    }

    function playDrillContextText() {
        return drillContextText
    }

    function playLogFooterText(row) {
        const entry = playHandLog.get(row)
        if (!entry || !entry.isMistake)
            return "Perfect"
        return isFinite(entry.evLoss) ? "EV -" + Number(entry.evLoss).toFixed(_evDecimals) : "EV —"
    }

    function playLogHeroCards(row) {
        const entry = playHandLog.get(row)
        if (!entry)
            return ""
        return entry.role === "IP" ? entry.ip : entry.oop
    }

    Component.onCompleted: {
        for (const hand of sampleHands)
            playHandLog.append(hand)
    }
}
