// The engine's milliseconds: the page's time at full speed, slower, or only step by step.
class PageClock {
    constructor() {
        this.now = 1000;
        this.speed = 1;
        this.last = performance.now();
    }

    // After the page was hidden, time goes on from where it was.
    advance() {
        const longestPause = 500;
        const real = performance.now();
        this.now += Math.min(real - this.last, longestPause) * this.speed;
        this.last = real;
    }

    step(milliseconds) { this.now += milliseconds; }

    milliseconds() { return Math.floor(this.now) >>> 0; }
}
