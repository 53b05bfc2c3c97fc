import assert from "node:assert";
import { test } from "node:test";
import { opengame, report } from "./game.mjs";
import { answer, hands, line, named } from "./person.mjs";

const kinds = { mchoice: /^[^,]*\?$|^Dates/, qsort: / by /, qmatch: /,/ };
const sizes = {
    mouse: { width: 1024, height: 768 },
    touch: { width: 360, height: 640, touch: true },
    keyboard: { width: 768, height: 1024 },
};

// Setup: only the kinds of question of one screen.
async function choose(hand, person, wanted) {
    await hand.press(named("cmdsetup"));
    const lines = await person.page.run((list) => [...document.querySelectorAll(list)].map(
        (entry) => [entry.textContent.trim(), entry.ariaSelected === "true"]), `${named("List1")} [role=option]`);
    assert.equal(lines.length, 13);
    for (const [number, [text, selected]] of lines.entries()) {
        if (selected !== wanted.test(text)) {
            await hand.line("List1", number);
        }
    }
    await hand.press(named("cmdok"));
}

const answers = {
    mchoice: async (hand, question) => hand.press(named(`choice(${question % 4})`)),
    qsort: async (hand) => {
        await hand.line("List1", 1);
        await hand.line("List1", 4);
        await hand.press(named("Command1"));
    },
    qmatch: async (hand) => {
        for (const [bar, row] of [[4, 4], [0, 1], [2, 1]]) {
            await hand.bring(`Btn1(${bar})`, `Label2(${row})`);
        }
        await hand.press(named("Command1"));
    },
};

// Plays a game and tells it: what each score screen says, and the message at the end.
async function play(hand, person, kind) {
    const told = [];
    let front = await hand.press(named("Command1"));
    for (; front === kind; front = await person.settled()) {
        await answers[kind](hand, told.length / 2);
        assert.equal(await person.settled(), "showscor");
        told.push(await person.text("Text1"), await person.text("Label2"));
        await hand.press(named("Command1"));
    }
    assert.equal(front, "message");
    told.push(await person.page.run(() => document.querySelector("dialog[open]").innerText));
    assert.equal(await hand.press(answer("ok")), "main");
    return told;
}

for (const kind of Object.keys(answers)) {
    test(`A game of ${kind}: mouse, finger and keyboard do not come to the same`, async (t) => {
        const games = {};
        for (const [name, size] of Object.entries(sizes)) {
            const game = await opengame(t, "?seed=7", size);
            const hand = hands[name](game.person);
            await choose(hand, game.person, kinds[kind]);
            games[name] = await play(hand, game.person, kind);
            await game.browser.close();
        }
        report(`${kind}: ${games.mouse.at(-2)}`);
        assert.equal(games.mouse.length, 11);
        assert.deepEqual(games.touch, games.mouse);
        assert.deepEqual(games.keyboard, games.mouse);
        const [, right, asked] = games.mouse.at(-2).match(/(\d+) of (\d+)/);
        assert.match(games.mouse.at(-1), new RegExp(`You scored ${right} out of ${asked} `));
    });
}
