// What lies below the ink: a small desktop, so that it is seen that ink covers nothing else. It is drawn, not
// laid out, because a pick reads its pixels.
class Scene {
    constructor(canvas) {
        this.context = canvas.getContext('2d', { willReadFrequently: true });
    }

    draw(width, height, dark) {
        const { context } = this;
        const sky = context.createLinearGradient(0, 0, 0, height);
        sky.addColorStop(0, dark ? '#5c728f' : '#8fb0d6');
        sky.addColorStop(1, dark ? '#8d8a86' : '#d9d3c8');
        context.fillStyle = sky;
        context.fillRect(0, 0, width, height);
        this.drawWindow(width * 0.08, height * 0.16, width * 0.84, height * 0.7, dark);
    }

    drawWindow(left, top, width, height, dark) {
        const { context } = this;
        const bar = 30;
        context.shadowColor = 'rgba(0, 0, 0, 0.3)';
        context.shadowBlur = 18;
        context.fillStyle = dark ? '#c6c3bb' : '#ece8df';
        context.beginPath();
        context.roundRect(left, top, width, height, 8);
        context.fill();
        context.shadowBlur = 0;
        context.fillStyle = dark ? '#545b66' : '#6a7482';
        context.beginPath();
        context.roundRect(left, top, width, bar, [8, 8, 0, 0]);
        context.fill();
        context.fillStyle = '#ffffff';
        context.font = '600 13px system-ui, sans-serif';
        context.textBaseline = 'middle';
        context.fillText('An ordinary window', left + 14, top + bar / 2);
        this.drawText(left + 20, top + bar + 26, width - 40, top + height - 64);
        this.drawColours(left + 20, top + height - 44, width - 40);
    }

    drawText(left, top, width, bottom) {
        const { context } = this;
        const words = ('Ink lies on a window of its own, above all others. What is below stays as it is: you can read it ' +
            'while you write, and clicks reach it. Every sample lives for the ink life and then goes, the oldest first.').split(' ');
        context.fillStyle = '#5d6470';
        context.font = '16px system-ui, sans-serif';
        let line = '';
        let y = top;
        for (const word of [...words, null]) {
            const longer = `${line}${word} `;
            if (word !== null && context.measureText(longer).width <= width) {
                line = longer;
                continue;
            }
            if (y < bottom) {
                context.fillText(line, left, y);
            }
            line = `${word} `;
            y += 26;
        }
    }

    drawColours(left, top, width) {
        const colours = ['#b3261e', '#e8871e', '#e3c53a', '#3c8d4f', '#2671c7', '#6b47a8'];
        const size = Math.min(28, width / colours.length - 8);
        colours.forEach((colour, i) => {
            this.context.fillStyle = colour;
            this.context.fillRect(left + i * (size + 8), top, size, size);
        });
    }
}
