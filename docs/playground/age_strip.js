// The living samples on a line of their age: new ones on the left, the end of the ink life on the right.
class AgeStrip {
    constructor(canvas) {
        this.canvas = canvas;
        this.samples = [];
    }

    add(time, touches) { this.samples.push({ time, touches }); }

    draw(now, life, colour) {
        const { canvas, samples } = this;
        const first = samples.findIndex((sample) => now - sample.time < life);
        samples.splice(0, first === -1 ? samples.length : first);
        const ratio = window.devicePixelRatio;
        const width = canvas.clientWidth;
        const height = canvas.clientHeight;
        canvas.width = Math.round(width * ratio);
        canvas.height = Math.round(height * ratio);
        const context = canvas.getContext('2d');
        context.scale(ratio, ratio);
        const style = getComputedStyle(canvas);
        for (const { time, touches } of samples) {
            const x = ((now - time) / life) * (width - 2);
            context.fillStyle = touches ? colour : style.color;
            context.globalAlpha = touches ? 1 : 0.35;
            context.fillRect(x, touches ? 2 : height - 5, 2, touches ? height - 4 : 3);
        }
    }
}
