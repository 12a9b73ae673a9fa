// A back-end of the page's own: what the engine's callbacks do on a canvas.

// Colours of the engine are 0xAABBGGRR.
const cssColour = (colour, alpha = 1) =>
    `rgba(${colour & 0xff}, ${(colour >> 8) & 0xff}, ${(colour >> 16) & 0xff}, ${alpha})`;

class CanvasBackEnd {
    // `pickColour` answers with the colour under the pen.
    constructor(canvas, pickColour) {
        this.context = canvas.getContext('2d');
        this.pickColour = pickColour;
        this.scale = 1;
        this.segments = 0;
        this.shown = 0; // segments of the last frame
    }

    clear() {
        const { context } = this;
        context.clearRect(0, 0, context.canvas.width, context.canvas.height);
        this.segments = 0;
    }

    present() { this.shown = this.segments; }

    line(x1, y1, x2, y2, width, colour) {
        this.segments += 1;
        this.context.strokeStyle = this.context.fillStyle = cssColour(colour);
        this.stroke(x1, y1, x2, y2, width);
    }

    // What is erased is see-through again.
    erase(x1, y1, x2, y2, width) {
        this.context.globalCompositeOperation = 'destination-out';
        this.context.strokeStyle = this.context.fillStyle = '#000';
        this.stroke(x1, y1, x2, y2, width);
        this.context.globalCompositeOperation = 'source-over';
    }

    stroke(x1, y1, x2, y2, width) {
        const widest = 100000; // wider than any page, and no trouble for a canvas
        const { context } = this;
        if (width === 0) {
            return;
        }
        context.beginPath();
        if (x1 === x2 && y1 === y2) { // a canvas draws no caps on a line without length
            context.arc(x1, y1, Math.min(width, widest) / 2, 0, 2 * Math.PI);
            context.fill();
            return;
        }
        context.lineCap = 'round';
        context.lineWidth = Math.min(width, widest);
        context.moveTo(x1, y1);
        context.lineTo(x2, y2);
        context.stroke();
    }

    // The hollow stroke as DirectComposition draws it: one path, half transparent, bent only where both
    // coordinates change. The engine scales nothing of it.
    path(samples, width, colour) {
        const { context } = this;
        context.save();
        context.scale(this.scale, this.scale);
        context.strokeStyle = cssColour(colour, 0.5);
        context.lineCap = context.lineJoin = 'round';
        context.lineWidth = width;
        context.beginPath();
        context.moveTo(samples[0].x, samples[0].y);
        for (let i = 1; i < samples.length && samples[i - 1].touches; ++i) {
            if (samples[i].x !== samples[i - 1].x && samples[i].y !== samples[i - 1].y) {
                context.lineTo(samples[i].x, samples[i].y);
            }
        }
        context.stroke();
        context.restore();
        this.segments += 1;
    }

    text(x, y, size, colour, text) {
        this.context.font = `${size}px sans-serif`;
        this.context.fillStyle = cssColour(colour);
        this.context.fillText(text, x, y);
    }
}
