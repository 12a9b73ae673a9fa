// Pen, finger, mouse and arrow keys as samples. One pointer at a time writes; the others wait.

const fullPressure = 32767; // what a pen reports at most here, whatever the record says

class Pen {
    // `add` gets position and pressure; places are the stage's own pixels.
    constructor(stage, add) {
        this.stage = stage;
        this.add = add;
        this.writing = null; // the pointer that touches
        this.x = 0;
        this.y = 0;
        this.listen();
        this.listenToKeys();
    }

    listen() {
        const { stage } = this;
        stage.addEventListener('pointerdown', (event) => {
            if (this.writing !== null || event.button !== 0) {
                return;
            }
            this.writing = event.pointerId;
            stage.setPointerCapture(event.pointerId);
            this.take(event);
        });
        // Raw updates come as the pen reports, without waiting for the page's next frame.
        const move = 'onpointerrawupdate' in window ? 'pointerrawupdate' : 'pointermove';
        stage.addEventListener(move, (event) => {
            const parts = event.getCoalescedEvents ? event.getCoalescedEvents() : [];
            for (const part of parts.length > 0 ? parts : [event]) {
                this.take(part);
            }
        });
        const end = (event) => {
            if (event.pointerId === this.writing) {
                this.writing = null;
                this.take(event);
            }
        };
        stage.addEventListener('pointerup', end);
        stage.addEventListener('pointercancel', end);
        stage.addEventListener('contextmenu', (event) => event.preventDefault());
    }

    take(event) {
        if (this.writing !== null && event.pointerId !== this.writing) {
            return;
        }
        const box = this.stage.getBoundingClientRect();
        // A contact of a device that measures no pressure counts as half of it.
        const pressure = this.writing === null ? 0 : Math.max(1, Math.round((event.pressure || 0.5) * fullPressure));
        this.at(event.clientX - box.left, event.clientY - box.top, pressure);
    }

    // 0 for a coordinate would be a command to the engine.
    at(x, y, pressure) {
        this.x = Math.max(1, Math.floor(x));
        this.y = Math.max(1, Math.floor(y));
        this.add(this.x, this.y, pressure);
    }

    // The arrows move a pen that hovers; with Shift it touches.
    listenToKeys() {
        const directions = { ArrowLeft: [-1, 0], ArrowRight: [1, 0], ArrowUp: [0, -1], ArrowDown: [0, 1] };
        const reach = 12;
        this.stage.addEventListener('keydown', (event) => {
            const direction = directions[event.key];
            if (!direction) {
                return;
            }
            event.preventDefault();
            const inside = (value, size) => Math.min(Math.max(value, 1), size - 1);
            const pressure = event.shiftKey ? Math.round(fullPressure / 2) : 0;
            if (this.x === 0) {
                this.x = Math.round(this.stage.clientWidth / 2);
                this.y = Math.round(this.stage.clientHeight / 2);
            }
            if (event.shiftKey) {
                this.at(this.x, this.y, pressure); // where the pen comes down
            }
            this.at(inside(this.x + reach * direction[0], this.stage.clientWidth),
                inside(this.y + reach * direction[1], this.stage.clientHeight), pressure);
        });
        this.stage.addEventListener('keyup', (event) => {
            if (event.key === 'Shift' && this.x !== 0) {
                this.at(this.x, this.y, 0);
            }
        });
    }
}
