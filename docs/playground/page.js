// The page: brings pen, recording, controls and engine together.

const element = (id) => document.getElementById(id);
const bytesOf = (base64) => Uint8Array.from(atob(base64), (character) => character.charCodeAt(0));

class Page {
    constructor() {
        this.stage = element('ink');
        this.scene = new Scene(element('scene'));
        this.strip = new AgeStrip(element('ages'));
        this.backEnd = new CanvasBackEnd(this.stage, (isChosen) => this.pick(isChosen));
        this.clock = new PageClock();
        this.needsFrame = true;
        this.liveBefore = 0;
        this.times = []; // of the last frames, in milliseconds
    }

    async start() {
        this.engine = await Engine.load(bytesOf(engineBytes), this.backEnd);
        const defaults = this.engine.readRecord();
        this.controls = new Controls(element('controls'), defaults, (record) => this.use(record));
        this.player = new Player(recording, this.stage, (x, y, pressure) => this.add(x, y, pressure));
        this.pen = new Pen(this.stage, (x, y, pressure) => this.add(x, y, pressure));
        this.stage.addEventListener('pointerdown', () => this.play(false));
        this.listenToButtons(defaults);
        new ResizeObserver(() => this.fit()).observe(this.stage);
        window.matchMedia('(prefers-color-scheme: dark)').addEventListener('change', () => this.fit());
        this.fit();
        this.controls.setAll({ ...defaults, ...pageStart });
        this.play(!window.matchMedia('(prefers-reduced-motion: reduce)').matches);
        setInterval(() => this.tick(), 50);
        requestAnimationFrame(() => this.everyFrame());
        setInterval(() => this.showReadings(), 250);
        document.documentElement.dataset.ready = 'true';
    }

    listenToButtons(defaults) {
        element('play').addEventListener('click', () => this.play(!this.player.plays));
        element('defaults').addEventListener('click', () => this.controls.setAll(defaults));
        element('start').addEventListener('click', () => this.controls.setAll({ ...defaults, ...pageStart }));
        element('step').addEventListener('click', () => {
            this.clock.step(10);
            this.needsFrame = true;
        });
        for (const choice of document.querySelectorAll('input[name="speed"]')) {
            choice.addEventListener('change', () => this.setSpeed(Number(choice.value)));
        }
        element('path').addEventListener('change', () => {
            this.engine.calls.setVectorOutline(element('path').checked ? 1 : 0);
            this.needsFrame = true;
        });
        element('copy').addEventListener('click', () => this.copy());
    }

    setSpeed(speed) {
        this.clock.speed = speed;
        element('step').disabled = speed !== 0;
    }

    play(on) {
        if (on && !this.player.plays) {
            this.player.start(this.clock.now);
        } else if (!on) {
            this.player.stop();
        }
        element('play').textContent = on ? 'Stop the recording' : 'Play the recording';
    }

    // Each pixel of the page is one of the samples; the engine scales to the screen's own.
    fit() {
        const { clientWidth, clientHeight } = this.stage;
        const ratio = window.devicePixelRatio;
        for (const canvas of [this.stage, element('scene')]) {
            canvas.width = Math.round(clientWidth * ratio);
            canvas.height = Math.round(clientHeight * ratio);
        }
        this.scene.context.setTransform(ratio, 0, 0, ratio, 0, 0);
        this.scene.draw(clientWidth, clientHeight, window.matchMedia('(prefers-color-scheme: dark)').matches);
        this.backEnd.scale = ratio;
        this.engine.calls.setScale(ratio);
        this.needsFrame = true;
    }

    use(record) {
        this.engine.useRecord(record);
        element('code').textContent = codeInC(record, this.controls.defaults);
        this.needsFrame = true;
    }

    // As the library does it: the colour below the pen becomes the record's, and the touch ends the picking.
    pick(isChosen) {
        const colour = this.colourBelowPen();
        this.controls.record.inkColor = colour;
        if (isChosen) {
            this.controls.record.colorPicker = 0;
        }
        this.engine.useRecord(this.controls.record);
        this.controls.show();
        element('code').textContent = codeInC(this.controls.record, this.controls.defaults);
        return colour;
    }

    colourBelowPen() {
        const ratio = window.devicePixelRatio;
        const place = [Math.floor(this.pen.x * ratio), Math.floor(this.pen.y * ratio), 1, 1];
        const [red, green, blue] = this.scene.context.getImageData(...place).data;
        return (blue << 16) | (green << 8) | red;
    }

    setClock() {
        this.clock.advance();
        this.engine.calls.setClock(this.clock.milliseconds());
    }

    add(x, y, pressure) {
        this.setClock();
        this.engine.calls.addSample(x, y, pressure);
        this.strip.add(this.clock.milliseconds(), pressure > 0);
        this.needsFrame = true;
    }

    // As the library's timer: one more frame when the last sample has gone.
    tick() {
        this.setClock();
        const live = this.engine.calls.tick();
        this.needsFrame = this.needsFrame || (live === 0 && this.liveBefore !== 0);
        this.liveBefore = live;
    }

    everyFrame() {
        requestAnimationFrame(() => this.everyFrame());
        this.setClock();
        const { record } = this.controls;
        this.player.advance(this.clock.now, record.inkDecayTime + 300);
        if (this.needsFrame || this.clock.speed !== 1) {
            this.drawFrame();
        }
        this.strip.draw(this.clock.milliseconds(), record.inkDecayTime, pageColour(record.inkColor & 0xffffff));
    }

    drawFrame() {
        this.needsFrame = false;
        const begin = performance.now();
        this.engine.calls.drawFrame();
        this.times.push(performance.now() - begin);
        this.times.splice(0, this.times.length - 60);
    }

    showReadings() {
        const sum = this.times.reduce((total, time) => total + time, 0);
        element('segments').textContent = this.backEnd.shown;
        element('rate').textContent = this.engine.calls.reportRate();
        element('time').textContent = this.times.length === 0 ? '–' : (sum / this.times.length).toFixed(2);
        element('life').textContent = this.controls.record.inkDecayTime;
    }

    async copy() {
        const code = element('code');
        window.getSelection().selectAllChildren(code);
        let copied = document.execCommand('copy');
        if (!copied && navigator.clipboard) {
            copied = await navigator.clipboard.writeText(code.textContent).then(() => true, () => false);
        }
        element('copied').textContent = copied ? 'Copied.' : 'Marked: copy it by the keyboard.';
    }
}

// The defaults' ink lives for a tenth of a second: right below a pen, short for a first look.
const pageStart = { inkDecayTime: 1500, inkColor: 0x001e14c8 };

if (window.top !== window) {
    document.querySelector('nav').remove(); // the manual is around it
}
new Page().start();
