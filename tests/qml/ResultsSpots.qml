// The spots the Results tests solve with the real controller: small enough to solve in seconds.
import QtQuick

QtObject {
    // A river spot with narrow ranges and one bet and one raise size.
    readonly property var river: Object.assign({
        board: "QsJh2h7c3d", starting_street: "river", starting_pot: 100, effective_stack: 200,
        max_iterations: 300, target_exploitability: 0, thread_count: 2,
        oop_range: "AA,KK,QQ,AK,AQ,KQ,JT,T9", ip_range: "JJ,TT,99,AJ,KJ,QJ,98,87"
    }, oneSizePerStreet())

    // Every street of both seats bets half the pot and raises the pot: the controller wants all twelve texts.
    function oneSizePerStreet() {
        const sizes = {}
        for (const seat of ["oop", "ip"]) {
            for (const street of ["flop", "turn", "river"]) {
                sizes[seat + "_" + street + "_bet_sizes"] = "50"
                sizes[seat + "_" + street + "_raise_sizes"] = "100"
            }
        }
        return sizes
    }

    // A flop spot with suit-symmetric ranges, a shallow stack and a couple of iterations.
    function flop(board) {
        return Object.assign({
            board: board, starting_street: "flop", starting_pot: 100, effective_stack: 100,
            max_iterations: 2, target_exploitability: 0, thread_count: 2,
            oop_range: "AA,KK,AK", ip_range: "QQ,JJ,AQ"
        }, oneSizePerStreet())
    }
}
