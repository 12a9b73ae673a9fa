// Plays the recording into the middle of the stage, by the page's clock, again and again.
class Player {
    // Points are [x, y, milliseconds, pressure], from 0 on.
    constructor(points, stage, add) {
        this.points = points;
        this.stage = stage;
        this.add = add;
        this.next = 0;
        this.begin = null; // the clock at the first point; null while nothing plays
        this.width = Math.max(...points.map((point) => point[0]));
        this.height = Math.max(...points.map((point) => point[1]));
    }

    get plays() { return this.begin !== null; }

    start(now) {
        this.begin = now;
        this.next = 0;
    }

    stop() {
        if (this.plays && this.next > 0) {
            this.addPoint(this.next - 1, 0);
        }
        this.begin = null;
    }

    // Adds what is due. `pause` lies between two times round.
    advance(now, pause) {
        if (!this.plays) {
            return;
        }
        if (this.next === this.points.length) {
            if (now - this.begin > this.points[this.next - 1][2] + pause) {
                this.start(now);
            }
            return;
        }
        while (this.next < this.points.length && now - this.begin >= this.points[this.next][2]) {
            this.addPoint(this.next, this.points[this.next][3]);
            this.next += 1;
        }
    }

    addPoint(index, pressure) {
        const margin = 0.1;
        const { clientWidth, clientHeight } = this.stage;
        const scale = Math.min(clientWidth / this.width, clientHeight / this.height) * (1 - 2 * margin);
        const left = (clientWidth - this.width * scale) / 2;
        const top = (clientHeight - this.height * scale) / 2;
        const [x, y] = this.points[index];
        this.add(Math.round(left + x * scale), Math.round(top + y * scale), pressure);
    }
}
