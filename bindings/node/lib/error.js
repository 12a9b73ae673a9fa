// The one error that this package throws.
'use strict';

class LumoraError extends Error {
    constructor(message, options) {
        super(message, options);
        this.name = 'LumoraError';
    }
}

module.exports = { LumoraError };
