// The page's script: a browser's, a script and no module, of a bounded size, and no way to read data as markup or code.
export default [
  {
    files: ['**/pagina.js'],
    languageOptions: {
      ecmaVersion: 2022,
      sourceType: 'script',
      globals: Object.fromEntries(
        `document window globalThis location history navigator matchMedia addEventListener performance setTimeout clearTimeout
        requestAnimationFrame cancelAnimationFrame ResizeObserver DecompressionStream TextDecoder Response Blob URL
        URLSearchParams DOMParser Option atob`.split(/\s+/).map((nome) => [nome, 'readonly']),
      ),
    },
    linterOptions: { reportUnusedDisableDirectives: 'error' },
    rules: {
      'max-lines': ['error', 900],
      'no-undef': 'error',
      'no-unused-vars': 'error',
      'no-redeclare': 'error',
      'no-shadow': 'error',
      'no-const-assign': 'error',
      'no-dupe-keys': 'error',
      'no-fallthrough': 'error',
      'no-unreachable': 'error',
      'no-use-before-define': ['error', { functions: false, variables: false }],
      'no-self-assign': 'error',
      'no-empty': 'error',
      'no-var': 'error',
      'prefer-const': 'error',
      eqeqeq: 'error',
      curly: ['error', 'multi-line'],
      'no-eval': 'error',
      'no-implied-eval': 'error',
      'no-new-func': 'error',
      'no-script-url': 'error',
      'no-restricted-properties': ['error',
        ...['innerHTML', 'outerHTML', 'insertAdjacentHTML', 'write', 'writeln', 'createContextualFragment', 'setHTMLUnsafe']
          .map((property) => ({ property, message: 'text is text: use textContent, append or replaceChildren' }))],
    },
  },
];
